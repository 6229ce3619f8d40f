#include "platform/watched_reading.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <thread>

namespace quillvane {

namespace {

// Below what a user feels as waiting; far above what a question costs.
constexpr std::chrono::milliseconds kBetweenQuestions{40};

class ReadingThread {
 public:
  // Throws std::system_error when no thread is to be had.
  explicit ReadingThread(const std::function<void()>& read)
      : thread_([this, &read] {
          read();
          const std::lock_guard lock(changing_);
          done_ = true;
          has_news_.notify_one();
        }) {}
  ~ReadingThread() { thread_.join(); }
  ReadingThread(const ReadingThread&) = delete;
  ReadingThread& operator=(const ReadingThread&) = delete;

  // Whether the reading was done before the time for the next question.
  [[nodiscard]] bool wait() {
    std::unique_lock lock(changing_);
    return has_news_.wait_for(lock, kBetweenQuestions, [this] { return done_; });
  }

 private:
  std::mutex changing_;
  std::condition_variable has_news_;
  bool done_ = false;
  std::thread thread_;  // last: it uses the others
};

std::string without_backslash(std::string folder) {
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

}  // namespace

void read_watched(TreeReading* watch, const std::string& folder, ReadingState& state,
                  const std::function<void()>& read) {
  if (watch == nullptr) return read();
  const std::string root = without_backslash(folder);
  if (!watch->go_on({root, 0})) {
    state.end();
    return read();
  }
  std::optional<ReadingThread> reading;
  try {
    reading.emplace(read);
  } catch (const std::system_error&) {
    return read();
  }
  while (!reading->wait()) {
    if (!watch->go_on({state.folder_in_work(root), state.files()})) state.end();
  }
}

}  // namespace quillvane
