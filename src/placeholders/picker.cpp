#include "placeholders/picker.h"

#include <utility>

#include "base/text.h"

namespace tarnwick {
namespace {

// The text split at a character position; a position beyond the end splits
// after the last character.
std::pair<std::string, std::string> SplitAt(std::string_view text, std::size_t position) {
  const auto count = static_cast<std::int64_t>(std::min<std::size_t>(position, text.size()));
  std::string first = vb::Left(text, count);
  std::string rest(text.substr(first.size()));
  return {std::move(first), std::move(rest)};
}

std::size_t LengthOf(std::string_view text) { return static_cast<std::size_t>(vb::Len(text)); }

}  // namespace

void PatternPicker::ShowMe(std::vector<CatalogueRow> rows, std::string_view field_text,
                           std::size_t field_cursor) {
  rows_ = std::move(rows);
  result_.clear();
  SetManualText(std::string(field_text), field_cursor);
  selected_.assign(rows_.size(), false);
  in_use_.assign(rows_.size(), false);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    in_use_[i] = ContainsText(field_text, rows_[i].tag);
  }
}

std::string PatternPicker::RowText(std::size_t index, std::string_view in_use_note) const {
  if (index >= rows_.size()) return {};
  if (!in_use_[index]) return rows_[index].tag;
  return rows_[index].tag + " " + std::string(in_use_note);
}

bool PatternPicker::IsInUse(std::size_t index) const {
  return index < in_use_.size() && in_use_[index];
}

void PatternPicker::SetSelected(std::size_t index, bool selected) {
  if (index < selected_.size()) selected_[index] = selected;
}

bool PatternPicker::IsSelected(std::size_t index) const {
  return index < selected_.size() && selected_[index];
}

void PatternPicker::DeselectAll() { selected_.assign(rows_.size(), false); }

std::size_t PatternPicker::SelectedCount() const {
  std::size_t count = 0;
  for (bool selected : selected_) count += selected ? 1 : 0;
  return count;
}

std::optional<std::size_t> PatternPicker::Search(std::string_view text) {
  const std::optional<std::size_t> found = FindFirstCatalogueRow(rows_, text);
  if (!found) return found;
  // The row found is the selection: a search typed letter by letter must not
  // leave the rows it passed on the way selected.
  DeselectAll();
  SetSelected(*found, true);
  return found;
}

void PatternPicker::SetManualText(std::string text, std::size_t cursor) {
  manual_cursor_ = std::min(cursor, LengthOf(text));
  manual_text_ = std::move(text);
}

void PatternPicker::ChooseRow(std::size_t index) {
  if (mode_ != InsertMode::kManual || index >= rows_.size()) return;
  auto [left, right] = SplitAt(manual_text_, manual_cursor_);
  const std::string& tag = rows_[index].tag;
  const std::size_t cursor = LengthOf(left) + LengthOf(tag);
  SetManualText(left + tag + right, cursor);
}

bool PatternPicker::Confirm(std::string_view separator) {
  if (rows_.empty()) return false;
  if (mode_ == InsertMode::kManual) {
    result_ = manual_text_;
    return true;
  }
  result_.clear();
  std::size_t count = 0;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (!selected_[i]) continue;
    result_ += rows_[i].tag;
    result_ += separator;
    ++count;
  }
  // One row keeps its separator behind the tag; several lose the last one.
  if (count > 1) result_.resize(result_.size() - separator.size());
  return true;
}

FieldUpdate ApplyPattern(std::string_view field_text, std::size_t cursor, InsertMode mode,
                         std::string_view pattern) {
  FieldUpdate update{std::string(field_text), cursor, std::nullopt};
  if (pattern.empty()) return update;
  switch (mode) {
    case InsertMode::kAppend:
      update.text += pattern;
      update.cursor = LengthOf(update.text);
      break;
    case InsertMode::kOverwrite:
    case InsertMode::kManual:
      update.text = std::string(pattern);
      update.cursor = LengthOf(update.text);
      break;
    case InsertMode::kInsertAtCursor: {
      auto [left, right] = SplitAt(field_text, cursor);
      update.cursor = LengthOf(left) + LengthOf(pattern);
      update.text = left + std::string(pattern) + right;
      break;
    }
    case InsertMode::kToClipboard:
      update.clipboard = std::string(pattern);
      break;
  }
  return update;
}

}  // namespace tarnwick
