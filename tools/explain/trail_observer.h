// The steps of a request between its questions.
#ifndef TOOLS_EXPLAIN_TRAIL_OBSERVER_H_
#define TOOLS_EXPLAIN_TRAIL_OBSERVER_H_

#include <stdexcept>
#include <string>

#include "platform/observer.h"
#include "tools/explain/trail.h"

namespace velmohelp::tool {

/// The client would look for the end of a value forever.
class EndlessScan : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Appends them to a trail. Throws EndlessScan, and sets endless(), in place of
/// a scan that never ends.
class TrailObserver : public RequestObserver {
 public:
  explicit TrailObserver(Trail& trail) : trail_(trail) {}

  bool endless() const { return endless_; }

  void OnKeyFile(const std::string& path, const std::string* text) override;
  void BeforeScan(std::string_view text, std::string_view key) override;
  void OnLookUp(const std::string& page, std::string_view key) override;
  void OnHelpMap(const std::string& path,
                 const std::string_view* text) override;
  void OnContentFolder(const std::string& path, bool accepted,
                       const std::string& target) override;

 private:
  Trail& trail_;
  std::string file_;
  std::string key_;
  bool endless_ = false;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_TRAIL_OBSERVER_H_
