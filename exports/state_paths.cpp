// The second part of the state, constructed after state.cpp: the standard
// streams (by including their header), then the viewer's folders.
#include <iostream>

#include "exports/state.h"

std::string kKLHPreferenceFile;
std::string kDownloadedOfflineContent;
std::string kDownloadedHelpcfg;
