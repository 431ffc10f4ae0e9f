// A C++ library that does no more than start the standard stream library, as
// the client's documented order of construction does at load.
#include <iostream>

extern "C" __attribute__((visibility("default"))) int Streams() { return 0; }
