#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/random.h"
#include "tools/tool_job.h"

namespace tarnwick {

// One sweep over a file being shredded, reported after its bytes are on the
// disk: series 1 has three sweeps per pass (0 with a rest of 90, 255 with a
// rest of 255, 255 with a rest of 140), series 2 one sweep of random block
// values per pass. `path` is the file's random name.
struct ShredSweep {
  int series = 1;
  int pass = 1;
  int sweep = 1;
  std::string path;
};
using ShredWatch = std::function<void(const ShredSweep&)>;

// The block every sweep writes: full blocks of this size, then the rest.
inline constexpr std::uint64_t kShredBlock = 32768;

// The passes `FSOverwrite` asks for: 1 to 99, 8 when the option says
// nothing usable.
int ShredPasses(const OptionStore& options);

// The secure delete of the selected rows: the question with their count,
// then each file in list order overwritten `passes` times in two series and
// deleted. A write-protected file is asked about (Yes: its protection goes;
// No: it is skipped; Cancel: the job stops). A symbolic link is never
// followed and a file open in another program is not touched; both fail
// with a message. Each file first takes a name of random digits in its
// folder, logged before its first byte is overwritten; every sweep reaches
// the disk before the next begins. Esc stops after the current sweep: the
// file in work, already overwritten, is still deleted; the rest stay. The
// list is read again.
ToolJobResult SecureDeleteFiles(const RenameRunEnv& env, int passes, Random& random,
                                const ShredWatch& watch = {});

}  // namespace tarnwick
