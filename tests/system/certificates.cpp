#include "tests/system/certificates.h"

#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <atomic>

namespace velmohelp::testing {
namespace {

constexpr long kSecondsInADay = 86400;
constexpr long kVersion3 = 2;

Identity Unsigned(const std::string& name, Validity validity) {
  static std::atomic<long> serial_number = 1;
  Identity made{{EVP_EC_gen("P-256"), &EVP_PKEY_free},
                {X509_new(), &X509_free}};
  X509* certificate = made.certificate.get();
  X509_set_version(certificate, kVersion3);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate), serial_number++);
  X509_gmtime_adj(X509_getm_notBefore(certificate),
                  validity.first * kSecondsInADay);
  X509_gmtime_adj(X509_getm_notAfter(certificate),
                  validity.last * kSecondsInADay);
  X509_set_pubkey(certificate, made.key.get());
  const auto* bytes = reinterpret_cast<const unsigned char*>(name.c_str());
  X509_NAME_add_entry_by_NID(X509_get_subject_name(certificate), NID_commonName,
                             MBSTRING_UTF8, bytes, -1, -1, 0);
  return made;
}

void Extend(const Identity& identity, int kind, const std::string& value) {
  X509_EXTENSION* extension =
      X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.c_str());
  X509_add_ext(identity.certificate.get(), extension, -1);
  X509_EXTENSION_free(extension);
}

void Sign(const Identity& identity, const Identity& issuer) {
  X509_set_issuer_name(identity.certificate.get(),
                       X509_get_subject_name(issuer.certificate.get()));
  X509_sign(identity.certificate.get(), issuer.key.get(), EVP_sha256());
}

}  // namespace

Authority::Authority() : own_(Unsigned("An authority", {})) {
  Extend(own_, NID_basic_constraints, "critical,CA:TRUE");
  Sign(own_, own_);
}

Identity Authority::Issue(const std::string& host, Validity validity) const {
  Identity issued = Unsigned(host, validity);
  Extend(issued, NID_subject_alt_name, "DNS:" + host);
  Sign(issued, own_);
  return issued;
}

std::string Authority::Pem() const {
  const std::unique_ptr<BIO, decltype(&BIO_free)> out(BIO_new(BIO_s_mem()),
                                                      &BIO_free);
  PEM_write_bio_X509(out.get(), own_.certificate.get());
  char* bytes = nullptr;
  const long size = BIO_get_mem_data(out.get(), &bytes);
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace velmohelp::testing
