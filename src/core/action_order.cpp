// The order of the ten actions and its dialogue.
#include "core/action_order.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSection = "Options";

std::string KeyOf(std::size_t position) { return "SortOrderInternal" + std::to_string(position); }

// A stored code: the number the text holds when it is whole and 1 to 10.
int CodeOf(std::string_view text) {
  try {
    const double value = vb::Val(text);
    if (value != std::floor(value) || value < 1 || value > kActionCount) return 0;
    return static_cast<int>(value);
  } catch (const VbError&) {
    return 0;
  }
}

constexpr std::array<std::string_view, kActionCount> kNameKeys = {
    "order.replace_filenames",
    "order.replace_extension",
    "order.replace_text_from_char",
    "order.cut_left",
    "",
    "order.cut_right",
    "",
    "order.replace_this_text",
    "order.use_placeholder",
    "order.manual_edit",
};

}  // namespace

ActionOrder DefaultActionOrder() {
  ActionOrder order{};
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i) + 1;
  return order;
}

ActionOrder ReadActionOrder(const OptionStore& options) {
  // A run asks for every file; the ten options are read again only when
  // the store may have changed.
  thread_local std::uint64_t cached_generation = 0;
  thread_local ActionOrder cached{};
  const std::uint64_t generation = options.Generation();
  if (generation != 0 && generation == cached_generation) return cached;
  ActionOrder order{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    const std::string fallback = std::to_string(i + 1);
    order[i] = CodeOf(options.GetOption(KeyOf(i + 1), kSection, fallback));
  }
  cached_generation = generation;
  cached = order;
  return order;
}

void StoreActionOrder(OptionStore& options, const ActionOrder& order) {
  for (std::size_t i = 0; i < order.size(); ++i) {
    options.SaveOption(KeyOf(i + 1), kSection, std::to_string(order[i]));
  }
}

std::string ActionDisplayName(int code, const MessageTable& messages) {
  if (code == kActionPrefix) return "Prefix";
  if (code == kActionPostfix) return "Postfix";
  if (code < 1 || code > kActionCount) return {};
  return std::string(messages.Text(kNameKeys[code - 1]));
}

SortOrderEditor::SortOrderEditor(const OptionStore& options) : order_(ReadActionOrder(options)) {
  for (std::size_t i = 0; i < stored_.size(); ++i) {
    stored_[i] = options.GetOption(KeyOf(i + 1), kSection, std::to_string(i + 1));
  }
}

int SortOrderEditor::CurrentAction(std::size_t row) const {
  return row < order_.size() ? order_[row] : 0;
}

bool SortOrderEditor::Changed(std::size_t row) const {
  return row < order_.size() && order_[row] != static_cast<int>(row) + 1;
}

bool SortOrderEditor::MoveUp(std::size_t row) {
  if (row == 0 || row >= order_.size()) return false;
  std::swap(order_[row], order_[row - 1]);
  std::swap(stored_[row], stored_[row - 1]);
  return true;
}

bool SortOrderEditor::MoveDown(std::size_t row) {
  if (row + 1 >= order_.size()) return false;
  std::swap(order_[row], order_[row + 1]);
  std::swap(stored_[row], stored_[row + 1]);
  return true;
}

bool SortOrderEditor::ResetToDefault(Interaction& interaction, const MessageTable& messages) {
  MessageBoxRequest box;
  box.title = std::string(messages.Text("order.title_clear_settings"));
  box.text = std::string(messages.Text("order.really_set_default"));
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kQuestion;
  box.topic = Topic::kOther;
  if (interaction.ShowMessage(box) != Answer::kYes) return false;
  order_ = DefaultActionOrder();
  for (std::size_t i = 0; i < stored_.size(); ++i) stored_[i] = std::to_string(i + 1);
  return true;
}

void SortOrderEditor::Store(OptionStore& options) const {
  for (std::size_t i = 0; i < stored_.size(); ++i) {
    const std::string value = order_[i] != 0 ? std::to_string(order_[i]) : stored_[i];
    options.SaveOption(KeyOf(i + 1), kSection, value);
  }
}

std::string ActionOrderSummary(const ActionOrder& order, const std::function<bool(int)>& ticked,
                               const MessageTable& messages) {
  const bool is_default = order == DefaultActionOrder();
  std::string names;
  const auto add = [&](int code) {
    if (code == 0) return;
    if (!names.empty()) names += " > ";
    names += ActionDisplayName(code, messages);
  };
  for (const int code : order) {
    if (ticked(code)) add(code);
  }
  if (names.empty() && !is_default) {
    for (const int code : order) add(code);
  }
  const std::string head(messages.Text(is_default ? "order.summary_default" : "order.summary_own"));
  return names.empty() ? head : head + ": " + names;
}

}  // namespace tarnwick
