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

/// Waits until the page that it shows at a URL has this title. (Until the page
/// is there, its address in some form is its title.) When that takes too long,
/// the test fails with what is shown.
void AwaitPage(const HelpWorld& world, const std::string& url,
               const std::string& title);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_CHROMIUM_H_
