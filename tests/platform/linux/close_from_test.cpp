// The three ways to close what a program must not have.
#include "platform/linux/close_from.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

#include "platform/linux/programs.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

constexpr int kFirst = 10;

bool IsOpen(int fd) { return fcntl(fd, F_GETFD) != -1; }

/// Opens that many descriptors, from kFirst upwards.
void Open(int count) {
  for (int fd = kFirst; fd < kFirst + count; ++fd) dup2(STDERR_FILENO, fd);
}

bool NoneIsOpenIn(int first, int count) {
  for (int fd = first; fd < first + count; ++fd) {
    if (IsOpen(fd)) return false;
  }
  return true;
}

struct Way {
  const char* sentence;
  void (*close)(int first);
};

class Closing : public ::testing::TestWithParam<Way> {};

TEST_P(Closing, ClosesAllFromTheFirst) {
  EXPECT_TRUE(testing::InACopy([] {
    constexpr int kCount = 300;
    Open(kCount);
    GetParam().close(kFirst + 1);
    return IsOpen(kFirst) && NoneIsOpenIn(kFirst + 1, kCount);
  }));
}

TEST_P(Closing, NeedsNoFreeDescriptor) {
  EXPECT_TRUE(testing::InACopy([] {
    const rlimit limit = {64, 64};
    setrlimit(RLIMIT_NOFILE, &limit);
    while (dup(STDERR_FILENO) != -1) {
    }
    GetParam().close(3);
    return IsOpen(2) && NoneIsOpenIn(3, 61);
  }));
}

/// A host may lower its limit below the descriptors that it has open.
TEST_P(Closing, ClosesBeyondTheSoftLimit) {
  EXPECT_TRUE(testing::InACopy([] {
    Open(300);
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = 20;
    setrlimit(RLIMIT_NOFILE, &limit);
    GetParam().close(3);
    return NoneIsOpenIn(3, 310);
  }));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, Closing,
    ::testing::Values(Way{"by whatever the system offers", &CloseFrom},
                      Way{"by the list in proc",
                          [](int first) {
                            if (!CloseListedFrom(first)) _exit(1);
                          }},
                      Way{"one after the other", &CloseEachFrom}),
    testing::SentenceOf());

/// Makes a system call fail with an error for this process and its children.
void Refuse(unsigned number, unsigned error) {
  sock_filter filter[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  const sock_fprog program = {4, filter};
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

struct SandboxRow {
  const char* sentence;
  unsigned call;
  unsigned error;
};

class ASandbox : public ::testing::TestWithParam<SandboxRow> {};

TEST_P(ASandbox, StartsProgramsWithoutTheHostsDescriptors) {
  EXPECT_TRUE(testing::InACopy([] {
    Open(1);
    Refuse(GetParam().call, GetParam().error);
    return FirstOutput("/bin/sh", {"-c",
                                   "test -e /proc/$$/fd/2 && "
                                   "test ! -e /proc/$$/fd/10 && "
                                   "echo closed"}) == "closed\n";
  }));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, ASandbox,
    ::testing::Values(
        SandboxRow{"without close_range", SYS_close_range, EPERM},
        SandboxRow{"that knows no close_range", SYS_close_range, ENOSYS},
        SandboxRow{"that keeps the scheduling", SYS_sched_setaffinity, EPERM},
        SandboxRow{"that keeps the priority", SYS_setpriority, EPERM},
        SandboxRow{"without memory files", SYS_memfd_create, ENOSYS}),
    testing::SentenceOf());

/// Rather no browser than one with root's rights.
TEST(ASandboxThatKeepsTheUserIds, StartsNothingForASetUserIdHost) {
  if (geteuid() != 0) GTEST_SKIP() << "only root changes its ids freely";
  EXPECT_TRUE(testing::InACopy([] {
    setresuid(7, 0, 0);
    Refuse(SYS_setresuid, EPERM);
    return !RunToEnd("/bin/true", {});
  }));
}

TEST(ASandboxThatKeepsTheUserIds, StartsProgramsWithTheUsersOwnIds) {
  EXPECT_TRUE(testing::InACopy([] {
    Refuse(SYS_setresuid, EPERM);
    return RunToEnd("/bin/true", {}) == 0;
  }));
}

}  // namespace
}  // namespace velmohelp
