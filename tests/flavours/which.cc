// Says which flavour of the library answers.
#include <haldgen.h>

#include <cstdio>

int main() { std::puts(haldgenGetLibVersion()->name); }
