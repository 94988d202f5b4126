#pragma once

#include <QDialog>
#include <array>

#include "persist/option_store.h"
#include "shell/message_table.h"
#include "tools/export_choices.h"

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace tarnwick::gui {

// The eight column ticks `chkTextToCreate` both exports ask with, headed as
// the list's columns are.
class ExportColumnTicks {
 public:
  ExportColumnTicks(const OptionStore& options, const MessageTable& messages, QWidget* frame);
  void Show(const ExportColumns& columns);
  ExportColumns Chosen() const;
  // `ok` is enabled while at least one column is ticked.
  void EnableWhenAny(QPushButton* ok);
  QCheckBox* tick(int column) const { return ticks_[column]; }

 private:
  std::array<QCheckBox*, 8> ticks_{};
};

// `frmSelectText`: the columns, the rows and the delimiter of the text
// export, shown as last stored.
class SelectTextDialog : public QDialog {
  Q_OBJECT

 public:
  SelectTextDialog(const OptionStore& options, const MessageTable& messages,
                   QWidget* parent = nullptr);
  TextExportChoices choices() const;
  const ExportColumnTicks& columns() const { return *columns_; }

 private:
  void ShowChoices(const TextExportChoices& choices);
  void DelimiterChanged();

  std::unique_ptr<ExportColumnTicks> columns_;
  QCheckBox* only_selected_ = nullptr;
  QCheckBox* include_subdirs_ = nullptr;
  QCheckBox* number_of_files_ = nullptr;
  QCheckBox* date_time_ = nullptr;
  QButtonGroup* delimiter_ = nullptr;
  QSlider* tabs_ = nullptr;
  QLabel* tabs_value_ = nullptr;
  QLineEdit* other_ = nullptr;
};

// `frmSelectXML`: the columns and rows of the XML export, and whether what
// XML cannot hold is converted.
class SelectXmlDialog : public QDialog {
  Q_OBJECT

 public:
  SelectXmlDialog(const OptionStore& options, const MessageTable& messages,
                  QWidget* parent = nullptr);
  XmlExportChoices choices() const;

 private:
  std::unique_ptr<ExportColumnTicks> columns_;
  QCheckBox* only_selected_ = nullptr;
  QCheckBox* convert_ = nullptr;
};

}  // namespace tarnwick::gui
