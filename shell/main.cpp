// The editor's entry point.
#include "skylathe.h"

int main(int argc, char** argv) {
    return Main(argc, argv);
}
