// The configuration file: the recent files and the options kept between runs.
#pragma once

// Sets the recent lists and the options to their defaults, then reads the file over them.
void ReadConfig();
// Writes the recent lists and the options; runs at every orderly exit.
void WriteConfig();
