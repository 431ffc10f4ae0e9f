// Debian's Chromium without a screen, and what it shows.
#ifndef TESTS_SYSTEM_CHROMIUM_H_
#define TESTS_SYSTEM_CHROMIUM_H_

#include <string>

#include "tests/system/help_world.h"

namespace velmohelp::testing {

bool IsChromiumInstalled();

/// Makes it the user's browser in a world, with a profile of its own, and with
/// no name to ask the network for.
void InstallChromium(HelpWorld& world);

/// The title of the page that it shows at a URL, once that is not the URL; what
/// else it shows when that takes too long.
std::string AwaitTitle(const HelpWorld& world, const std::string& url);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_CHROMIUM_H_
