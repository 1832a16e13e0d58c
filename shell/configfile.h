// The configuration file Skylathe.cfg: the recent files and the options kept between runs, in the
// user's configuration folder ($XDG_CONFIG_HOME/skylathe, by default ~/.config/skylathe).
#pragma once

#include <string>

// Where the file lives.
std::string ConfigFilePath();
// Sets the recent lists and the options to their defaults, then reads the file over them; a
// missing file is told in a message and the defaults stand.
void ReadConfig();
// Writes the recent lists and the options, replacing the file in one step; runs at every orderly
// exit. A file that cannot be written is passed over: the next start tells that it is missing.
void WriteConfig();
