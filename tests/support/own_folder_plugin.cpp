// A plug-in that tells where it was loaded from.
#include "platform/linux/own_location.h"

extern "C" __attribute__((visibility("default"))) const char* own_folder() {
  static std::string folder;
  folder = velmohelp::OwnFolder().value_or("nowhere");
  return folder.c_str();
}
