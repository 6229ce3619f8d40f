// Faults of the host, for tests: calls that fail as on another file system, a full disk or an older
// kernel, and a user without an administrator's rights.
#pragma once

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <thread>
#include <vector>

namespace quillvane {

// Runs the work in a thread of its own in which each of these system calls (SYS_write, ...) fails
// with the error.
inline void with_failing_calls(std::initializer_list<long> calls, int error,
                               const std::function<void()>& work) {
  std::vector<sock_filter> steps = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<unsigned>(offsetof(seccomp_data, nr)))};
  for (const long call : calls) {
    steps.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1));
    steps.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)));
  }
  steps.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  const sock_fprog program = {static_cast<unsigned short>(steps.size()), steps.data()};
  std::thread([&] {
    ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
    work();
  }).join();
}

// While it lives, a test that root runs has the rights of an ordinary user. Folders of the test are
// made after it, so that they are that user's.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() { EXPECT_EQ(seteuid(was_root_ ? kNobody : geteuid()), 0); }
  ~AsOrdinaryUser() { EXPECT_EQ(seteuid(was_root_ ? 0 : geteuid()), 0); }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool was_root_ = geteuid() == 0;
};

}  // namespace quillvane
