// Case of ASCII letters only: names in model files are upper case, bytes above 127 are Latin-1
// letters whose case the program never changes, whatever the locale says.
#pragma once

#include <string>

char UpperAscii(char c);
std::string UpperAscii(std::string text);

// True when `a` and `b` differ at most in the case of their ASCII letters.
bool SameIgnoringCase(const std::string& a, const std::string& b);
