// What the disk tells of one file, as texts.
#pragma once

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace quillvane {

// clsFileProp: filled by one call, then read. The properties that nothing fills are meant so.
class clsFileProp {
 public:
  // `files` must outlive it.
  explicit clsFileProp(const FileSystem& files) : files_(files) {}

  // Looks up a path, in whose last part there may be wildcards: then the first match counts. 1; 0
  // for an empty path, which changes nothing. A path without a file leaves all flags false, the
  // size empty, and the times those of the year 1601.
  int FindFileInfo(const std::string& path);

  [[nodiscard]] const std::string& FileName() const { return file_name_; }  // in upper case
  [[nodiscard]] std::string CompanyName() const { return {}; }              // nothing fills it
  [[nodiscard]] std::string FileDescription() const { return {}; }          // likewise
  [[nodiscard]] std::string FileVersion() const { return {}; }              // likewise
  [[nodiscard]] std::string InternalName() const { return {}; }             // likewise
  [[nodiscard]] std::string LegalCopyright() const { return {}; }           // likewise
  [[nodiscard]] std::string OriginalFileName() const { return {}; }         // likewise
  [[nodiscard]] std::string ProductName() const { return {}; }              // likewise
  [[nodiscard]] std::string ProductVersion() const { return {}; }           // likewise
  // Digits; empty for an empty file. From 4 GB on the number is how many times 4 GB it holds, and
  // from 2 GB to there it is negative: meant so.
  [[nodiscard]] const std::string& ByteSize() const { return byte_size_; }
  // "3/7/2013 9:5:0": month, day, year and time of day without leading zeros, in UTC.
  [[nodiscard]] const std::string& CreationTime() const { return creation_time_; }
  [[nodiscard]] const std::string& LastAccessTime() const { return last_access_time_; }  // no time
  [[nodiscard]] const std::string& LastWriteTime() const { return last_write_time_; }
  [[nodiscard]] bool ReadOnly() const { return has(kAttributeReadOnly); }
  [[nodiscard]] bool Hidden() const { return has(kAttributeHidden); }
  [[nodiscard]] bool System() const { return has(kAttributeSystem); }
  [[nodiscard]] bool Directory() const { return false; }  // of a folder too: meant so
  [[nodiscard]] bool Archive() const { return has(kAttributeArchive); }
  [[nodiscard]] bool Normal() const { return has(kAttributeNormal); }
  [[nodiscard]] bool Temporary() const { return has(kAttributeTemporary); }
  [[nodiscard]] bool Compress() const { return has(kAttributeCompressed); }
  [[nodiscard]] std::string FileType() const { return {}; }   // nothing fills it
  [[nodiscard]] std::int32_t IconIndex() const { return 0; }  // likewise

 private:
  [[nodiscard]] bool has(std::uint32_t attribute) const { return (attributes_ & attribute) != 0; }

  const FileSystem& files_;
  std::string file_name_;
  std::string byte_size_;
  std::string creation_time_;
  std::string last_access_time_;
  std::string last_write_time_;
  std::uint32_t attributes_ = 0;
};

}  // namespace quillvane
