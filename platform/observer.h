// What a request reads and decides between its questions to the machine.
#ifndef PLATFORM_OBSERVER_H_
#define PLATFORM_OBSERVER_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// Follows one request, step by step, for a program that explains it. Together
/// with the questions that the machine is asked, in the order of both, it sees
/// everything that decides. The library's own requests have none: a null
/// pointer, and no call.
///
/// Texts are valid during the call. A function may throw: the request then ends
/// as it does when memory runs out.
class RequestObserver {
 public:
  virtual ~RequestObserver() = default;

  /// A configuration, or the viewer's preferences, was read; text is null when
  /// that failed.
  virtual void OnKeyFile(const std::string& path, const std::string* text) = 0;

  /// The value of a key is about to be looked for in a key file's text. To
  /// throw is the only way past a scan that never ends.
  virtual void BeforeScan(std::string_view text, std::string_view key) = 0;

  /// A search for a page begins: its normalised id, and its key in help maps.
  virtual void OnLookUp(const std::string& page, std::string_view key) = 0;

  /// A help map was read; text is null when it could not be opened.
  virtual void OnHelpMap(const std::string& path,
                         const std::string_view* text) = 0;

  /// A content folder was accepted or refused. target: the path or URL that it
  /// has, or was expected to have, for the page.
  virtual void OnContentFolder(const std::string& path, bool accepted,
                               const std::string& target) = 0;
};

}  // namespace velmohelp

#endif  // PLATFORM_OBSERVER_H_
