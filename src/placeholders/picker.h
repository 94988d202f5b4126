#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "placeholders/catalogue_rows.h"

namespace tarnwick {

// The choices of `optSelection`: what the calling field does with the result.
enum class InsertMode {
  kAppend = 0,          // field text followed by the result
  kOverwrite = 1,       // the result alone
  kInsertAtCursor = 2,  // left part up to the cursor, the result, the rest
  kToClipboard = 3,     // the result goes to the clipboard, the field stays
  kManual = 4,          // the hand-edited text of the picker, alone
};

// The picker's logic without a window: the list of rows, their selection and
// in-use marks, the search, the manual text and the result handed back to the
// calling field. The window only mirrors this state.
class PatternPicker {
 public:
  // Prepares the picker for the calling field: takes the built rows, clears
  // the result, copies the field text to the manual text, deselects every row
  // and marks the rows whose tag stands in the field text (case-insensitive).
  // The manual text's cursor starts at the field's cursor, in characters.
  void ShowMe(std::vector<CatalogueRow> rows, std::string_view field_text,
              std::size_t field_cursor = SIZE_MAX);

  const std::vector<CatalogueRow>& rows() const { return rows_; }
  // `lblPatternCount`: the label (message 523), a blank and the row count.
  std::string CountText(std::string_view label) const {
    return std::string(label) + " " + std::to_string(rows_.size());
  }
  // The row's tag as the list shows it: a row in use is followed by a blank
  // and `in_use_note` (message 854).
  std::string RowText(std::size_t index, std::string_view in_use_note) const;
  bool IsInUse(std::size_t index) const;

  void SetSelected(std::size_t index, bool selected);
  bool IsSelected(std::size_t index) const;
  void DeselectAll();
  std::size_t SelectedCount() const;

  // Runs the search of `txtSearch` for its current text. The first match
  // becomes the one selected row; its index is returned, the row to scroll
  // into view. std::nullopt if nothing matched: the selection stays.
  std::optional<std::size_t> Search(std::string_view text);

  // `optSelection`. Only kManual enables the manual text and its clear button.
  void SetMode(InsertMode mode) { mode_ = mode; }
  InsertMode mode() const { return mode_; }
  bool ManualEnabled() const { return mode_ == InsertMode::kManual; }

  // `txtReplacementManual` and its cursor, counted in characters.
  const std::string& manual_text() const { return manual_text_; }
  std::size_t manual_cursor() const { return manual_cursor_; }
  void SetManualText(std::string text, std::size_t cursor);
  void ClearManualText() { SetManualText({}, 0); }

  // A click on a row. In manual mode its tag goes into the manual text at the
  // cursor, and the cursor moves behind it; otherwise nothing happens here.
  void ChooseRow(std::size_t index);

  // `cmdOK`. Returns false, and changes nothing, when the list is empty (the
  // dialog stays open); true when the dialog closes with its result.
  bool Confirm(std::string_view separator);
  // Cancel: the result is cleared.
  void Cancel() { result_.clear(); }

  // The chosen text after the dialog has closed; empty after Cancel.
  const std::string& GetPattern() const { return result_; }

 private:
  std::vector<CatalogueRow> rows_;
  std::vector<bool> selected_;
  std::vector<bool> in_use_;
  InsertMode mode_ = InsertMode::kAppend;
  std::string manual_text_;
  std::size_t manual_cursor_ = 0;
  std::string result_;
};

// What the calling field holds after the picker has closed.
struct FieldUpdate {
  std::string text;
  std::size_t cursor = 0;  // in characters
  std::optional<std::string> clipboard;
};

// Applies the picker's result to the calling field by the chosen mode. An
// empty result (Cancel) leaves the field and its cursor as they are.
FieldUpdate ApplyPattern(std::string_view field_text, std::size_t cursor, InsertMode mode,
                         std::string_view pattern);

}  // namespace tarnwick
