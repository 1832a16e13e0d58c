// moxtool: the command-line companion of the editor, for scripts and for people who edit models
// by hand.
#include "commands.h"

int main(int argc, char** argv) {
    return RunMoxtool(Arguments(argv + 1, argv + argc));
}
