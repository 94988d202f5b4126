#pragma once

namespace tarnwick {

class OptionStore;
class Interaction;
class MessageTable;
class Clock;
struct AppState;
struct LogUndoState;

// What the log and undo writers work with, all owned by the front end and
// lent by reference: the options (read at each use), the person to ask when a
// file cannot be written, the texts in the user's language, the clock, the
// main window's state (a run under way, a cancel) and the log and undo state
// the main window keeps.
struct LogUndoEnv {
  OptionStore& options;
  Interaction& interaction;
  const MessageTable& messages;
  const Clock& clock;
  AppState& app;
  LogUndoState& state;
};

}  // namespace tarnwick
