#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/pipeline_env.h"

namespace tarnwick {

// The new name of one selected row, as the "New name" column shows it.
struct NewNameRow {
  std::size_t row = 0;
  std::string name;
  bool failed = false;  // a step raised: no name to show
  // The target is an existing file other than the row's own, or the target
  // of another row of the list.
  bool collides = false;
};

// The names a test run would give the selected rows, computed as the sample
// computes one (the ticked actions in the stored order, one expansion, the
// clean-up; no question is asked and no file is touched), with the counter
// stepping from row to row as in a run, reset by folder or day when the
// options ask for it. The work is done in slices so a window can go on
// between them; the counters of `env.app` are the same after each slice as
// before it.
class NewNamePreview {
 public:
  // Starts over for the selected rows of `env.list`, in list order.
  void Start(const PipelineEnv& env);
  // Computes up to `count` more rows. Returns true when every row is done.
  bool Step(const PipelineEnv& env, std::size_t count);
  bool done() const { return next_ >= pending_.size(); }

  // The entry of list row `row`; nullptr while it is not computed (or the
  // row is not selected).
  const NewNameRow* Find(std::size_t row) const;
  const std::vector<NewNameRow>& rows() const { return rows_; }
  std::size_t collision_count() const { return collisions_; }

 private:
  struct Counter {
    std::int32_t count = 0;
    std::int32_t same_number = 0;
    std::string last_folder;
    std::string last_date;
  };
  NewNameRow ComputeOne(const PipelineEnv& env, std::size_t row);
  void MarkCollisions(const PipelineEnv& env, std::size_t entry);
  void MarkCollision(std::size_t entry);

  std::vector<std::size_t> pending_;
  std::size_t next_ = 0;
  std::vector<NewNameRow> rows_;
  std::unordered_map<std::size_t, std::size_t> by_row_;
  // Target path -> the first entry that goes there.
  std::unordered_map<std::string, std::size_t> targets_;
  std::size_t collisions_ = 0;
  Counter counter_;
};

}  // namespace tarnwick
