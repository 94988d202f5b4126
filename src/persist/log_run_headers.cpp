#include "persist/log_run_headers.h"

#include "persist/log_file.h"
#include "persist/undo_batch.h"

namespace tarnwick {

void WriteRunHeaders(RunLog& log, UndoBatch& undo, int selected_count, int copy_rename_index) {
  log.WriteRunLogHeader(selected_count);
  undo.WriteUndoBatchHeader(selected_count, copy_rename_index);
}

}  // namespace tarnwick
