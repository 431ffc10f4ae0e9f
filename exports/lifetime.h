// The end of the library's state, and the calls that come after it.
//
// The state is destroyed at unload and at the process's end. Calls still come
// then: from an exit handler that the host registered before it loaded the
// library, or from a thread that nobody stopped.
#ifndef EXPORTS_LIFETIME_H_
#define EXPORTS_LIFETIME_H_

namespace velmohelp {

/// One call that uses the state.
class StateUse {
 public:
  StateUse() noexcept;
  StateUse(const StateUse&) = delete;
  StateUse& operator=(const StateUse&) = delete;
  ~StateUse();

  /// False when the state has ended: the call must refuse.
  bool is_allowed() const { return is_allowed_; }

 private:
  bool is_allowed_;
};

/// From now on no call may use the state.
void EndStateUse() noexcept;

/// Whether a call in another thread was using the state when it ended. Such a
/// call may last longer than the process: it is not waited for, and the state
/// is left as it is.
bool IsStateInUse() noexcept;

/// A variable of the state, with a destructor that leaves it to such a call.
template <typename T>
class StateVariable {
 public:
  StateVariable() : value() {}
  explicit StateVariable(const T& initial) : value(initial) {}
  StateVariable(const StateVariable&) = delete;
  StateVariable& operator=(const StateVariable&) = delete;
  ~StateVariable() {
    if (!IsStateInUse()) value.~T();
  }

  union {
    T value;
  };
};

}  // namespace velmohelp

#endif  // EXPORTS_LIFETIME_H_
