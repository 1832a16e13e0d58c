// Texture names are 8-bit text: byte b stands for the character U+00b (Latin-1). These turn such
// text into UTF-8, for file names and JSON, and back.
#pragma once

#include <string>

std::string Latin1ToUtf8(const std::string& latin1);
// False when `utf8` is not well-formed UTF-8 or holds a character above U+00FF.
bool Utf8ToLatin1(const std::string& utf8, std::string& latin1);
