#include <velmohelp/config.h>

#include "client/state_views.h"
#include "exports/this_machine.h"

using velmohelp::ConfigView;
using velmohelp::ThisMachine;

std::uint32_t ReadHelpcfg(std::string path) {
  return velmohelp::ReadHelpConfig(ConfigView(), path);
}

std::uint32_t UpdateHelpConfigInfo(std::string locale) {
  return velmohelp::UpdateHelpConfig(ThisMachine(), ConfigView(),
                                     std::move(locale));
}

namespace ITEMInternal {

std::string GetHelpConfigPath(std::string product, std::string locale) {
  return velmohelp::GetHelpConfigPath(ThisMachine(), product, locale);
}

std::string GetDownloadedHelpConfigPath(std::string first, std::string second) {
  return velmohelp::GetDownloadedHelpConfigPath(
      ThisMachine(), kDownloadedHelpcfg, first, second);
}

std::string GetHelpConfigName(std::string a, std::string b) {
  return velmohelp::GetHelpConfigName(ThisMachine(), a, b);
}

}  // namespace ITEMInternal
