#pragma once

#include <string>
#include <string_view>

#include "core/pipeline_env.h"

namespace tarnwick {

// The collision decision for a processed name (rename and copy mode). A free
// name (CheckNameDiff) is the result. A taken one is skipped without a
// question while `SkipExistingFiles` is not "0"; otherwise, if a file of that
// name exists, the file-exists dialogue decides: OK gives the name entered,
// Skip the empty text, Cancel sets `CancelRun` and gives the empty text. OK
// and Skip store the dialogue's tick in `SkipExistingFiles`.
std::string DecideCollision(const PipelineEnv& env, std::string_view old_name,
                            const std::string& name, std::string_view folder,
                            std::string_view row_name);

// The question about a name found taken (a regular file of that name is in
// `folder`): skipped without a question while `SkipExistingFiles` is not
// "0", otherwise the file-exists dialogue, as in DecideCollision.
std::string DecideTakenName(const PipelineEnv& env, const std::string& name,
                            std::string_view folder, std::string_view row_name);

// Whether another program holds the file `old_name` in `folder` open; the
// list's `row` lends its identity to a run's scan of open files.
bool FileHeldOpen(const PipelineEnv& env, std::size_t row, std::string_view folder,
                  std::string_view old_name);

// The open-file test of the file `old_name` in `folder`. A file another
// program holds open sets `FileLockSeen`; in rename and test mode the box
// "File is open" is shown, whose Cancel sets `CancelRun`, and the file is
// skipped. Returns false when the file is to be skipped.
bool PassOpenFileTest(const PipelineEnv& env, std::size_t row, std::string_view folder,
                      std::string_view old_name);

}  // namespace tarnwick
