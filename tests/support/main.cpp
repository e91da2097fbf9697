// Runs the tests of an executable on the host that it is linked with.
#include <gtest/gtest.h>

#include "support/Program.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const HostOfTests host(argc, argv);
    return RUN_ALL_TESTS();
}
