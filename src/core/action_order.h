#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

namespace tarnwick {

class Interaction;
class MessageTable;
class OptionStore;

// The codes of the ten actions of the name pipeline, as `SortOrderInternal1`
// to `SortOrderInternal10` store them.
inline constexpr int kActionCompleteName = 1;
inline constexpr int kActionExtension = 2;
inline constexpr int kActionReplaceRange = 3;
inline constexpr int kActionCutLeft = 4;
inline constexpr int kActionPrefix = 5;
inline constexpr int kActionCutRight = 6;
inline constexpr int kActionPostfix = 7;
inline constexpr int kActionReplaceText = 8;
inline constexpr int kActionUsePlaceholder = 9;
inline constexpr int kActionEditManual = 10;
inline constexpr int kActionCount = 10;

// Position n - 1 holds the code of the action that runs at position n. A code
// of 0 stands for a stored value outside 1 to 10: that position runs no action.
using ActionOrder = std::array<int, kActionCount>;

// 1, 2, ... 10.
ActionOrder DefaultActionOrder();

// `SortOrderInternal1` to `SortOrderInternal10` of section `Options`, each
// with its own number as default. A value that is not a whole number from 1
// to 10 gives 0.
ActionOrder ReadActionOrder(const OptionStore& options);

// Stores the order in `SortOrderInternal1` to `SortOrderInternal10`.
void StoreActionOrder(OptionStore& options, const ActionOrder& order);

// The display name of an action: "Prefix" and "Postfix" in every language,
// the others from the message table. Empty for a code outside 1 to 10.
std::string ActionDisplayName(int code, const MessageTable& messages);

// What `lblActionOrder` shows after its caption: "Default order" or "Own
// order", then the ticked actions in the order they run ("Prefix > Postfix").
// With no action ticked, an own order lists all ten actions so the change is
// visible; the default order then shows just "Default order".
std::string ActionOrderSummary(const ActionOrder& order, const std::function<bool(int)>& ticked,
                               const MessageTable& messages);

// The dialogue `frmSortOrder` ("Edit sort order") without its window: the
// ten rows with their position, their default action and the action that runs
// there now. Rows are indexed from 0; position n is row n - 1.
class SortOrderEditor {
 public:
  // Opening: the order as the options hold it.
  explicit SortOrderEditor(const OptionStore& options);

  const ActionOrder& order() const { return order_; }
  // The code of the action that runs at row `row` (0 beyond the rows).
  int CurrentAction(std::size_t row) const;
  // The row's action differs from its default: shown in bold.
  bool Changed(std::size_t row) const;

  // Swap the row's action with the row above / below. The first row cannot
  // go up, the last cannot go down; those calls, and rows beyond the list,
  // change nothing and return false.
  bool MoveUp(std::size_t row);
  bool MoveDown(std::size_t row);

  // "Default": asks "Do you really want to set all values to default?"
  // (title "Clear settings", Yes and No); Yes fills the rows anew with the
  // default order. Returns whether it did.
  bool ResetToDefault(Interaction& interaction, const MessageTable& messages);

  // "OK": stores the order of the rows in the options. Kept: a row whose
  // stored value is no action (outside 1 to 10) stores that value as it
  // was read, wherever the row has moved.
  void Store(OptionStore& options) const;

 private:
  ActionOrder order_;
  // Each row's value as the options held it, moved with its row.
  std::array<std::string, kActionCount> stored_;
};

}  // namespace tarnwick
