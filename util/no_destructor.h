// A static object that is never destroyed.
#ifndef UTIL_NO_DESTRUCTOR_H_
#define UTIL_NO_DESTRUCTOR_H_

namespace velmohelp {

/// For function statics that a thread may still use while the process ends. The
/// object must own no memory: an unloaded library would leak it.
template <typename T>
class NoDestructor {
 public:
  NoDestructor() : object_() {}
  NoDestructor(const NoDestructor&) = delete;
  NoDestructor& operator=(const NoDestructor&) = delete;
  // Not defaulted, which would not compile with such a member.
  // NOLINTNEXTLINE(modernize-use-equals-default)
  ~NoDestructor() {}

  T& operator*() { return object_; }

 private:
  union {
    T object_;
  };
};

}  // namespace velmohelp

#endif  // UTIL_NO_DESTRUCTOR_H_
