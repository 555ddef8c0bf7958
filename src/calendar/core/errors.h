// The exceptions of the date classes and the calendar model. They stand in
// for the framework's user and invalid-argument exceptions; a memory
// exception is std::bad_alloc. Every export's guard catches them all.
#pragma once

namespace zk::cal {

// The operation has decided to fail; nothing more is to be said.
struct UserError {};
// An index or argument outside what the operation accepts.
struct InvalidArgError {};

} // namespace zk::cal
