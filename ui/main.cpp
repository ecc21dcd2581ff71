// SPDX-License-Identifier: MIT
// The windowed program.
#include "ui/application.h"

int main(int argc, char** argv) {
    return tidewalk::RunApplication(argc, argv);
}
