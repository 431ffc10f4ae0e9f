// The worlds in which every implementation of the machine has to hold to the
// same contract.
#ifndef TESTS_SUPPORT_WORLD_H_
#define TESTS_SUPPORT_WORLD_H_

#include <memory>
#include <string>

#include "platform/machine.h"

namespace velmohelp::testing {

/// A machine and the means to put things on it. Names are relative to its
/// root, which is empty at first; functions return the whole path.
class World {
 public:
  virtual ~World() = default;

  virtual Machine& machine() = 0;
  virtual std::string root() const = 0;

  virtual std::string AddFile(const std::string& name) = 0;
  virtual std::string AddDirectory(const std::string& name) = 0;
  virtual std::string AddBundle(const std::string& identifier) = 0;
  /// An application directory with an executable; returns the directory.
  virtual std::string AddApplication(const std::string& name) = 0;
  /// A program that ends with this status when it is run without arguments.
  virtual std::string AddProgram(const std::string& name, int status) = 0;
  /// A program that prints a text when it is run with one argument "speak".
  virtual std::string AddSpeaker(const std::string& name,
                                 const std::string& text) = 0;
  /// A program that runs until it is ended.
  virtual std::string AddLastingProgram(const std::string& name) = 0;
  virtual std::string SetPreferencesFolder() = 0;
  virtual void SetUserPreference(const std::string& domain,
                                 const std::string& key,
                                 const std::string& value) = 0;
  /// Returns the URL of a text.
  virtual std::string AddText(const std::string& name) = 0;
};

std::unique_ptr<World> MakeLinuxWorld();
std::unique_ptr<World> MakeScriptedWorld();

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_WORLD_H_
