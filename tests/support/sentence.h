// Tests are tables: rows named by a sentence, which becomes the test's name.
#ifndef TESTS_SUPPORT_SENTENCE_H_
#define TESTS_SUPPORT_SENTENCE_H_

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace velmohelp::testing {

/// "an empty page id is refused" -> "an_empty_page_id_is_refused"
inline std::string AsTestName(std::string sentence) {
  for (char& c : sentence) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  }
  return sentence;
}

/// Names the rows of a table by their member `sentence`.
struct SentenceOf {
  template <typename Row>
  std::string operator()(const ::testing::TestParamInfo<Row>& info) const {
    return AsTestName(info.param.sentence);
  }
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_SENTENCE_H_
