#include "bench/measured_run.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

namespace quillvane::bench {

namespace {

std::size_t peak_resident_bytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

Measured run(const Task& task) {
  task.prepare();
  const std::size_t before = peak_resident_bytes();
  const auto begin = std::chrono::steady_clock::now();
  const std::size_t files = task.work();
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
  return {time.count(), peak_resident_bytes() - before, files};
}

}  // namespace

std::optional<Measured> measure(const Task& task) {
  int ends[2];
  if (pipe(ends) != 0) return std::nullopt;
  const pid_t child = fork();
  if (child == 0) {
    const Measured measured = run(task);
    const bool told = write(ends[1], &measured, sizeof measured) == sizeof measured;
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  Measured measured;
  const bool heard =
      child > 0 && read(ends[0], &measured, sizeof measured) == ssize_t{sizeof measured};
  close(ends[0]);
  if (child > 0) waitpid(child, nullptr, 0);
  return heard ? std::optional(measured) : std::nullopt;
}

}  // namespace quillvane::bench
