// The policy that keeps Explorer from writing thumbnail databases while they are removed.
#pragma once

#include "platform/platform.h"

namespace quillvane {

// Nine values, in every place that a version of Windows might honour. A value whose key is not
// there is left out. What was set before is not kept: after a run all of them are 0, whatever an
// administrator had set. Meant so.
class ThumbnailPolicy {
 public:
  explicit ThumbnailPolicy(const Platform& platform) : platform_(platform) {}

  // Sets them to 1, behind a mark in the registry that stays when the program dies.
  void disablethumbcache();
  // Sets them to 0 and takes the mark away.
  void enablethumbcache();

  // Does what a run that died has left undone. Without a mark, and while an instance of the program
  // is cleaning, nothing is touched.
  void put_back();

 private:
  const Platform& platform_;
  Instances::Hold announced_;  // tells the other instances that the mark has a living owner
};

// The same as ThumbnailPolicy's, for who ends the program at once and has only the registry.
void enablethumbcache(Registry& registry);

}  // namespace quillvane
