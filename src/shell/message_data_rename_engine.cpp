#include "shell/message_data.h"

// Texts of renaming, the run, numbering, the sample, the action order and the
// manual rename dialogue. Texts joined from pieces keep each piece as its own
// entry; blanks at a piece's ends are part of it.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Name pipeline: short names, open files, forbidden characters.
    {0, "pipeline.title_filename_too_short", "Filename to short", "Dateiname zu kurz"},
    {0, "pipeline.the_filename", "The filename '", "Der Dateiname '"},
    {0, "pipeline.shorter_than_cut_left",
     "is shorter than chars you want to cut from the left. Skipping this file.",
     "ist kürzer als die Zahl der Zeichen, die links abgeschnitten werden sollen. Die Datei wird "
     "übersprungen."},
    {0, "pipeline.shorter_than_cut_right",
     "' is shorter than chars you want to cut from the right. Skipping this file.",
     "' ist kürzer als die Zahl der Zeichen, die rechts abgeschnitten werden sollen. Die Datei "
     "wird übersprungen."},
    {0, "pipeline.no_chars_at_length", "' has no more chars on length",
     "' hat keine Zeichen mehr ab Länge"},
    {0, "pipeline.skipping_file", ". Skipping file.", ". Die Datei wird übersprungen."},
    {0, "run.continue_with_next_file", "Continue with next file?",
     "Mit der nächsten Datei fortfahren?"},
    {0, "pipeline.title_file_is_open", "File is open", "Datei ist geöffnet"},
    {0, "pipeline.file_opened_by_other_application",
     "The file is opened by another application and can't be renamed.",
     "Die Datei ist von einem anderen Programm geöffnet und kann nicht umbenannt werden."},
    {0, "pipeline.ok_skips_cancel_stops",
     "Press \"OK\" to skip the file or \"Cancel\" to cancel the operation.",
     "Drücken Sie \"OK\", um die Datei zu überspringen, oder \"Abbrechen\", um den Vorgang "
     "abzubrechen."},
    {0, "log.removed_illegal_chars", "Removed illegal chars", "Unzulässige Zeichen entfernt"},
    {0, "pipeline.title_filename", "Filename", "Dateiname"},
    {0, "pipeline.not_allowed_char",
     "You have entered an not allowed char for the filename. Pleas do NOT use one of this "
     "chars:  *,\\,/,\",?,:",
     "Sie haben ein für Dateinamen unzulässiges Zeichen eingegeben. Bitte verwenden Sie KEINES "
     "dieser Zeichen:  *,\\,/,\",?,:"},

    // Run: confirmation.
    {0, "run.start_title", "Start renaming", "Umbenennen starten"},
    {0, "run.log.no_journal",
     "No crash journal for this run, an interrupted run cannot be completed in the undo batch",
     "Kein Absturzprotokoll für diesen Lauf, ein abgebrochener Lauf kann in der "
     "Rückgängig-Datei nicht ergänzt werden"},
    {0, "run.start_note",
     "Do you really want to rename the selected files, or just want to do a test?",
     "Möchten Sie die ausgewählten Dateien wirklich umbenennen oder nur einen Test durchführen?"},
    {0, "run.button_rename", "Rename", "Umbenennen"},
    {0, "run.button_test", "Test", "Test"},
    {0, "run.button_cancel", "Cancel", "Abbrechen"},
    {0, "file_exists.button_ok", "OK", "OK"},

    // Run: the file exists already.
    {0, "file_exists.title", "The file exists already", "Die Datei existiert bereits"},
    {0, "file_exists.note",
     "A file with the same name exists already. You can enter another name and press \"OK\", "
     "\"Skip\" this file or \"Cancel\" the whole operation.",
     "Eine Datei mit demselben Namen existiert bereits. Sie können einen anderen Namen eingeben "
     "und \"OK\" drücken, diese Datei \"Überspringen\" oder den ganzen Vorgang \"Abbrechen\"."},
    {0, "file_exists.skip_all_further", "Skip all further existing files in this action",
     "Alle weiteren vorhandenen Dateien in diesem Vorgang überspringen"},
    {0, "file_exists.button_skip", "Skip", "Überspringen"},
    {0, "file_exists.must_enter_other_name", "You MUST enter another name to rename the file.",
     "Sie MÜSSEN einen anderen Namen eingeben, um die Datei umzubenennen."},

    // Run: checks before the start.
    {0, "run.windows_path_warning", "Renaming in windows path can destroy your installation.",
     "Umbenennen im Windows-Verzeichnis kann Ihre Installation zerstören."},
    {0, "run.really_proceed", "Do you really want to proceed?", "Möchten Sie wirklich fortfahren?"},
    {0, "run.title_attention", "ATTENTION", "ACHTUNG"},
    {0, "run.no_temp_folder", "Can't find temp folder, process terminated!",
     "Der Ordner für temporäre Dateien wurde nicht gefunden, der Vorgang wird beendet!"},
    {0, "run.title_chars", "Chars?", "Zeichen?"},
    {0, "run.only_numeric_chars", "Please enter only numeric chars.",
     "Bitte geben Sie nur Ziffern ein."},
    {0, "run.step_width_at_least_one", "Width of steps must at least be 1.",
     "Die Schrittweite muss mindestens 1 sein."},
    {0, "run.no_files_selected", "No files to rename selected!",
     "Keine Dateien zum Umbenennen ausgewählt!"},
    {0, "run.title_no_files_selected", "No files selected", "Keine Dateien ausgewählt"},
    {0, "run.extension_contains_points", "File extension should not contains points!",
     "Die Dateiendung darf keine Punkte enthalten!"},
    {0, "run.title_file_extension", "File extension", "Dateiendung"},
    {0, "run.search_text_empty", "Search textfield could  not be empty.",
     "Das Suchtextfeld darf nicht leer sein."},
    {0, "run.title_search_textfield", "Search textfield", "Suchtextfeld"},
    {0, "run.no_options_selected",
     "No options for renaming selected. This action can't be executed.",
     "Keine Optionen zum Umbenennen ausgewählt. Diese Aktion kann nicht ausgeführt werden."},
    {0, "run.title_no_options_selected", "No options selected", "Keine Optionen ausgewählt"},

    // Run: progress and results.
    {0, "run.status_in_progress", "Action in progress, please wait ...  [Cancel with \"Esc\"]",
     "Aktion läuft, bitte warten ...  [Abbrechen mit \"Esc\"]"},
    {0, "run.please_wait", "Please wait ...", "Bitte warten ..."},
    {0, "run.caption_program", "Tarnwick", "Tarnwick"},
    {0, "run.caption_prefix", "Tarnwick - ", "Tarnwick - "},
    {0, "run.caption_cancel_hint", "[To cancel use \"Esc\" key]",
     "[Zum Abbrechen die Taste \"Esc\" drücken]"},
    {0, "run.filename_empty", "<Could not be written, filename is empty>",
     "<Konnte nicht geschrieben werden, Dateiname ist leer>"},
    {706, "run.note_renamed", "Renamed", "Umbenannt"},
    {707, "run.note_created_copy", "Created copy", "Kopie erstellt"},
    {708, "run.note_test_only", "Only test mode / no action", "Nur Testmodus / keine Aktion"},
    {864, "run.note_file_skipped", "No action, file skipped!", "Keine Aktion, Datei übersprungen!"},
    {735, "run.job_time_measuring", "Job time measuring", "Zeitmessung des Auftrags"},
    {736, "run.title_job_duration", "Job duration", "Dauer des Auftrags"},
    {0, "run.time_format_hint", " (hh:mm:ss)", " (hh:mm:ss)"},
    {0, "run.test_errors_found",
     "Errors found during test. Do you want to see the list of files to be created?",
     "Beim Test wurden Fehler gefunden. Möchten Sie die Liste der zu erstellenden Dateien sehen?"},
    {0, "run.title_test_failed", "Test failed", "Test fehlgeschlagen"},
    {0, "run.test_no_errors", "No processing errors found during testing!",
     "Beim Test wurden keine Verarbeitungsfehler gefunden!"},
    {0, "run.see_list_of_files", "Do you want to see the list of files to be created?",
     "Möchten Sie die Liste der zu erstellenden Dateien sehen?"},
    {0, "run.title_test_successful", "Test successfull", "Test erfolgreich"},

    // Run: the result list of a test.
    {0, "result_list.column_present_name", "Present name", "Aktueller Name"},
    {0, "result_list.column_new_name", "New name", "Neuer Name"},
    {0, "result_list.column_folder", "Folder", "Ordner"},
    {0, "result_list.legend_unchanged", "blue = unchanged", "blau = unverändert"},
    {0, "result_list.legend_possible_error", "red/bold = possible error",
     "rot/fett = möglicher Fehler"},
    {0, "result_list.legend_renamed", "black = renamed", "schwarz = umbenannt"},
    {0, "result_list.title_save_batch", "Save batch file", "Batchdatei speichern"},
    {0, "result_list.filter_batch_file", "batch file", "Batchdatei"},
    {0, "result_list.batch_not_written", "The batch file could not be written:",
     "Die Batchdatei konnte nicht geschrieben werden:"},

    // Run: errors.
    {715, "run.log_error", "! ERROR:", "! FEHLER:"},
    {0, "run.overflow", "!!! OVERFLOW IN STARTRENAME !!!", "!!! ÜBERLAUF IN STARTRENAME !!!"},
    {0, "run.title_error_number", "ERROR: ", "FEHLER: "},
    {0, "run.error_while_renaming",
     "Error occured while renaming:", "Beim Umbenennen ist ein Fehler aufgetreten:"},
    {0, "run.title_error", "Error", "Fehler"},

    // Numbering.
    {0, "numbering.caption", "Numeration (only together with Pre-/Postfix)",
     "Nummerierung (nur zusammen mit Prefix/Postfix)"},
    {0, "numbering.before_prefix", "Before prefix", "Vor dem Prefix"},
    {0, "numbering.after_prefix", "After prefix", "Nach dem Prefix"},
    {0, "numbering.before_postfix", "Before postfix", "Vor dem Postfix"},
    {0, "numbering.after_postfix", "After postfix", "Nach dem Postfix"},
    {0, "numbering.separator", "Separator:", "Trennzeichen:"},
    {0, "numbering.steps", "Steps:", "Schritte:"},
    {0, "numbering.add_steps", "Add steps", "Schritte addieren"},
    {0, "numbering.subtract_steps", "Subtract steps", "Schritte subtrahieren"},
    {0, "numbering.multiply_steps", "Multiplicate steps", "Schritte multiplizieren"},

    // Sample preview. The rate words are stored as the option's value in the
    // language's own words.
    {0, "sample.rate_turn_off", "Turn off", "Ausschalten"},
    {0, "sample.rate_normal", "Normal", "Normal"},
    {0, "sample.rate_average", "Average", "Mittel"},
    {0, "sample.rate_slow", "Slow", "Langsam"},
    {0, "sample.rate_special", "Special", "Spezial"},
    {0, "sample.preview_disabled", "* Preview disabeld *", "* Vorschau deaktiviert *"},
    {0, "sample.status_file_count", "Filecount:", "Dateianzahl:"},
    {0, "sample.status_selected", "Selected:", "Ausgewählt:"},
    {0, "sample.status_path", "Path", "Pfad"},
    {0, "sample.no_files_in_folder", "No files in current selected directory.",
     "Keine Dateien im aktuell ausgewählten Verzeichnis."},
    {0, "sample.frame_caption", "Sample", "Beispiel"},
    {0, "sample.length", "Length", "Länge"},
    {0, "sample.chars", "chars", "Zeichen"},
    {0, "sample.selected_length", "Selected length", "Ausgewählte Länge"},
    {0, "sample.from_char", "from char", "von Zeichen"},
    {0, "sample.to", "to", "bis"},
    {0, "sample.char_positions_note",
     "To get char positions you can select some chars in the sample textfield.",
     "Um Zeichenpositionen zu erhalten, können Sie im Beispieltextfeld einige Zeichen markieren."},

    // Action order. "Prefix" and "Postfix" are the same in both languages.
    {0, "order.replace_filenames", "Replace filenames with", "Dateinamen ersetzen durch"},
    {0, "order.replace_extension", "Replace file extension with", "Dateiendung ersetzen durch"},
    {0, "order.replace_text_from_char", "Replace text from char", "Text ersetzen ab Zeichen"},
    {0, "order.cut_left", "Cut left", "Links abschneiden"},
    {0, "order.prefix", "Prefix", "Prefix"},
    {0, "order.cut_right", "Cut right", "Rechts abschneiden"},
    {0, "order.postfix", "Postfix", "Postfix"},
    {0, "order.replace_this_text", "Replace this text", "Diesen Text ersetzen"},
    {0, "order.use_placeholder", "Use placeholder", "Platzhalter verwenden"},
    {0, "order.manual_edit", "Show filename for manual edit before saving",
     "Dateinamen vor dem Speichern zur manuellen Bearbeitung anzeigen"},
    {0, "order.title", "Edit sort order", "Reihenfolge bearbeiten"},
    {0, "order.column_position", "Position", "Position"},
    {0, "order.column_current_action", "Current Action", "Aktuelle Aktion"},
    {0, "order.column_default_action", "Default action", "Standardaktion"},
    {0, "order.button_default", "Default", "Standard"},
    // The list's menu; its words are ours.
    {0, "order.menu_move_up", "Move up", "Nach oben"},
    {0, "order.menu_move_down", "Move down", "Nach unten"},
    {0, "order.changed_indicator", "Bold = Order changed", "Fett = Reihenfolge geändert"},
    {0, "order.hint_double_click", "Doubleclick to change the order of the actions",
     "Doppelklicken, um die Reihenfolge der Aktionen zu ändern"},
    {0, "order.really_set_default", "Do you really want to set all values to default?",
     "Möchten Sie wirklich alle Werte auf den Standard zurücksetzen?"},
    {0, "order.title_clear_settings", "Clear settings", "Einstellungen zurücksetzen"},
    {0, "order.summary_default", "Default order", "Standardreihenfolge"},
    {0, "order.summary_own", "Own order", "Eigene Reihenfolge"},

    // Manual rename dialogue.
    {0, "manual.title", "Manual renaming", "Manuelles Umbenennen"},
    {0, "manual.select_filename", "Select filename", "Dateinamen markieren"},
    {0, "manual.from", "from", "von"},
    {0, "manual.to", "to", "bis"},
    {0, "manual.select_whole_filename", "Select whole filename", "Ganzen Dateinamen markieren"},
    {0, "manual.note", "Manual altering of the filename:", "Manuelles Ändern des Dateinamens:"},
    {0, "manual.reset_to_original", "Set back to original name",
     "Auf den ursprünglichen Namen zurücksetzen"},
    {0, "manual.reset_to_dialog_start", "Set back to name of dialog start",
     "Auf den Namen beim Öffnen des Dialogs zurücksetzen"},
    {0, "manual.filename_too_long", "Length of filename is to long!", "Der Dateiname ist zu lang!"},
    {0, "manual.really_cancel", "Do you really want to cancel the renaming?",
     "Möchten Sie das Umbenennen wirklich abbrechen?"},
    {0, "manual.title_cancel_action", "Cancel action", "Aktion abbrechen"},
    // Our own words: the caption of `chkExtension`, and why a run stops when
    // the same refused name comes back again and again.
    {0, "manual.to_extension", "Only up to the extension", "Nur bis zur Dateiendung"},
    {0, "manual.cancelled_after_rejections",
     "The same name was refused ten times in a row, so the renaming is cancelled. The file "
     "keeps its name.",
     "Derselbe Name wurde zehnmal hintereinander abgelehnt, daher wird das Umbenennen "
     "abgebrochen. Die Datei behält ihren Namen."},
};

}  // namespace

std::span<const MessageEntry> RenameEngine() { return kEntries; }

}  // namespace tarnwick::message_data
