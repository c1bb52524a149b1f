#pragma once

#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace qismora::testing {

enum class Outcome { Ended, Killed, NotPermitted };

/// Runs the program in a child process and kills it at its system call of that number, before the call takes
/// effect. NotPermitted where processes may not be traced.
inline Outcome RunUpToCall(int number, const std::function<void()>& program) {
  constexpr int notPermitted = 77;
  const pid_t child = fork();
  if (child == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(notPermitted);
    std::raise(SIGSTOP);
    program();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status)) return Outcome::NotPermitted;
  // Each system call stops the process twice: on entry and on return.
  for (int stops = 0; stops < 2 * number - 1; ++stops) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      return Outcome::Ended;
    }
  }
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  return Outcome::Killed;
}

/// Runs two programs at the same time and expects both to succeed.
inline void RunTwoPrograms(const std::function<void(int program)>& run) {
  pid_t children[2] = {};
  for (int program = 0; program < 2; ++program) {
    children[program] = fork();
    ASSERT_GE(children[program], 0);
    if (children[program] != 0) continue;
    run(program);
    _exit(0);
  }
  for (int ended = 0; ended < 2; ++ended) {
    int status = -1;
    ASSERT_GT(wait(&status), 0);
    EXPECT_EQ(status, 0);
    if (status == 0) continue;
    for (const pid_t child : children) kill(child, SIGKILL);  // the other one may wait for the failed one
  }
}

}  // namespace qismora::testing
