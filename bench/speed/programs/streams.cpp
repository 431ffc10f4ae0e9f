// A C++ library that does no more than start the standard stream library, which
// the client's documented order of construction has to do at load.
#include <iostream>

extern "C" __attribute__((visibility("default"))) int Streams() { return 0; }
