// The library's own exceptions, thrown inside guarded bodies only (the
// guard of every export turns them into its failure value). They stand in
// for the framework's: a user exception after the user has been told, no
// memory, an argument outside what a body accepts, a resource that could
// not be set up.
#pragma once

namespace zk {

struct Exception {
    virtual ~Exception() = default;
};
struct UserException : Exception {};       // the body has already told the user
struct MemoryException : Exception {};     // a block the library needs could not be had
struct InvalidArgException : Exception {}; // an index or argument outside what a body accepts
struct ResourceException : Exception {};   // a window class or resource could not be set up

} // namespace zk
