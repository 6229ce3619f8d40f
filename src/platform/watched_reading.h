// The watch over the reading of a tree: it is read on a thread of its own, so that a disk that
// takes its time for an answer does not keep the window waiting.
#pragma once

#include <functional>
#include <string>

#include "platform/reading_state.h"
#include "platform/tree_reading.h"

namespace quillvane {

// Runs `read`, which fills a tree below `folder` and obeys `state`; `watch` is asked on the calling
// thread, and its No ends the reading through `state`. Null: nobody watches. Returns when `read`
// does. Where no thread is to be had, it runs unwatched behind the first question.
void read_watched(TreeReading* watch, const std::string& folder, ReadingState& state,
                  const std::function<void()>& read);

}  // namespace quillvane
