// The classic compressed-file format of COMPRESS.EXE ("SZDD"), written and
// read here so that the expansion can be checked against the platform's LZ
// functions with files made in the test.
//
// Header: "SZDD" 0x88 0xF0 0x27 0x33, 'A', the name's missing last
// character, the expanded length (32 bits, little-endian). Then LZSS over a
// ring of 4096 bytes that starts filled with spaces, first written at
// 4096 - 16. Each flag byte rules the next eight items, lowest bit first:
// 1 is a literal byte, 0 a match of two bytes, position low eight bits,
// then position high four bits and length - 3 in the low four.
#pragma once

#include <cstdint>
#include <string>

namespace filestest {

// `missing` is the last character of the name the compressed file stands for.
std::string SzddCompress(const std::string &data, char missing = 't');

// Expands a compressed file; false when the header is not SZDD or the
// data ends before the length it promises.
bool SzddExpand(const std::string &file, std::string &out);

} // namespace filestest
