// A C++ library with nothing in it: what loading one costs at least.
extern "C" __attribute__((visibility("default"))) int Empty() { return 0; }
