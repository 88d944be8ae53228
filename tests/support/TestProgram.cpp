#include "TestApplication.h"

// Linked to the programs that have no main() of their own.
int main(int argc, char** argv)
{
    return test::runRegistered(argc, argv);
}
