// Certificates of a test's own, and the authority that vouches for them.
#ifndef TESTS_SYSTEM_CERTIFICATES_H_
#define TESTS_SYSTEM_CERTIFICATES_H_

#include <openssl/ssl.h>

#include <memory>
#include <string>

namespace velmohelp::testing {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;

/// A certificate and its key.
struct Identity {
  Key key;
  Certificate certificate;
};

/// Days from now.
struct Validity {
  int first = -1;
  int last = 1;
};

class Authority {
 public:
  Authority();

  /// Vouches for a server that is called host.
  Identity Issue(const std::string& host, Validity validity = {}) const;

  /// The authority's own certificate, as a file of trusted ones has it.
  std::string Pem() const;

 private:
  Identity own_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_CERTIFICATES_H_
