// A name server in the network that a test has made (RFC 1035).
#ifndef TESTS_SYSTEM_NAME_SERVER_H_
#define TESTS_SYSTEM_NAME_SERVER_H_

namespace velmohelp::testing {

/// Its answer to every question.
enum class NameAnswer {
  kNothing,
  /// 127.0.0.1.
  kThisMachine,
  kFailure,
  kNoSuchName,
  kRefusal,
};

/// Starts one at 127.0.0.1, as a child of this process that ends with it. False
/// when it cannot listen there.
bool StartNameServer(NameAnswer answer);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_NAME_SERVER_H_
