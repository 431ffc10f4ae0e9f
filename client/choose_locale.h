// The locale in which a person reads a product's help.
#ifndef CLIENT_CHOOSE_LOCALE_H_
#define CLIENT_CHOOSE_LOCALE_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/client.h"

namespace velmohelp {

/// locales, the best first: for each entry of preferred ("de_AT:de:en") the one
/// that is the same, then those of the same language; after all entries the
/// rest. An entry may be written as POSIX or BCP 47 do ("de_AT.UTF-8@euro",
/// "de-AT"). Otherwise the order of locales stays. Each comes once.
std::vector<std::string> OrderedByPreference(std::vector<std::string> locales,
                                             std::string_view preferred);

/// The first of the product's installed locales, ordered by preference and
/// otherwise by name, that an initialisation of this client accepts now.
/// nullopt when there is none. Changes nothing and does not use the network.
std::optional<std::string> ChooseLocale(const Client& client,
                                        const std::string& product,
                                        std::string_view preferred);

}  // namespace velmohelp

#endif  // CLIENT_CHOOSE_LOCALE_H_
