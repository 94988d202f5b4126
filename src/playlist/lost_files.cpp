#include "playlist/lost_files.h"

#include <dirent.h>

#include <algorithm>
#include <memory>

#include "base/path_text.h"
#include "base/text.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "platform/files.h"
#include "playlist/media_types.h"
#include "playlist/playlist_path.h"
#include "playlist/playlist_rows.h"

namespace tarnwick {
namespace {

// "artist - title" of a file's tags, empty when it has none.
std::string TagTitle(const std::string& path) {
  ID3v2Tag v2;
  if (ReadID3v2(path, v2)) return StripAtNull(v2.artist) + " - " + StripAtNull(v2.title);
  ID3v1Tag v1;
  if (ReadID3v1(path, v1)) return StripAtNull(v1.artist) + " - " + StripAtNull(v1.title);
  return {};
}

class Search {
 public:
  Search(std::vector<PlaylistRow>& rows, bool subfolders, const LostFilesObserver& observer)
      : rows_(rows), subfolders_(subfolders), observer_(observer) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (!RowFileExists(rows[i])) missing_.push_back(i);
    }
  }

  const LostFilesProgress& progress() const { return progress_; }

  void Walk(const std::string& folder) {
    if (missing_.empty() || stopped_) return;
    std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(folder.c_str()), ::closedir);
    if (!dir) return;
    ++progress_.folders;
    progress_.folder = folder;
    std::vector<std::string> subfolders;
    while (const dirent* entry = ::readdir(dir.get())) {
      const std::string name = entry->d_name;
      if (name == "." || name == "..") continue;
      const std::string path = JoinPath(folder, name);
      const unsigned char type = entry->d_type;
      if (type == DT_DIR) {
        if (subfolders_) subfolders.push_back(path);
        continue;
      }
      if (type != DT_REG && type != DT_LNK && type != DT_UNKNOWN) continue;
      if (!FilterMedia(name) || !FileExists(path)) continue;
      Look(path, name);
      if (missing_.empty() || stopped_) return;
    }
    dir.reset();
    std::sort(subfolders.begin(), subfolders.end());
    for (const std::string& sub : subfolders) Walk(sub);
  }

  void MarkRest() {
    for (std::size_t i : missing_) rows_[i].red = true;
  }

 private:
  void Look(const std::string& path, const std::string& name) {
    ++progress_.files;
    progress_.file = path;
    const std::string tag_title = TagTitle(path);
    const std::string bare = TitleFromPath(name);
    auto match = missing_.end();
    if (!tag_title.empty()) match = FindMissing([&](const PlaylistRow& row) {
        return EqualsText(row.title, tag_title);
      });
    if (match == missing_.end()) match = FindMissing([&](const PlaylistRow& row) {
        return EqualsText(LastPathElement(row.path), name);
      });
    if (match == missing_.end()) match = FindMissing([&](const PlaylistRow& row) {
        return EqualsText(row.title, bare);
      });
    if (match != missing_.end()) {
      PlaylistRow& row = rows_[*match];
      row.path = path;
      row.red = false;
      row.tag.clear();
      missing_.erase(match);
      ++progress_.found;
    }
    if (observer_ && !observer_(progress_)) stopped_ = true;
  }

  template <typename Test>
  std::vector<std::size_t>::iterator FindMissing(Test test) {
    return std::find_if(missing_.begin(), missing_.end(),
                        [&](std::size_t i) { return test(rows_[i]); });
  }

  std::vector<PlaylistRow>& rows_;
  bool subfolders_;
  const LostFilesObserver& observer_;
  std::vector<std::size_t> missing_;
  LostFilesProgress progress_;
  bool stopped_ = false;
};

}  // namespace

LostFilesProgress FindLostFiles(std::vector<PlaylistRow>& rows, const std::string& folder,
                                bool subfolders, const LostFilesObserver& observer) {
  Search search(rows, subfolders, observer);
  search.Walk(folder);
  search.MarkRest();
  return search.progress();
}

}  // namespace tarnwick
