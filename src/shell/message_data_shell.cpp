#include "shell/message_data.h"

// Texts of the application shell: the start window's status lines, crash
// recovery, the update question, the start-up and closing log entries and
// errors, and the captions of the main window's buttons and menus.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Status lines of the start window.
    {0, "startup.starting", "Starting ...", "Starte ..."},
    {1054, "startup.reading", "Reading:", "Lese:"},
    {0, "startup.sorting_file_list", "Sorting file list ...", "Sortiere Dateiliste ..."},
    {0, "startup.searching_for_updates", "Searching for updates online ...",
     "Suche online nach Aktualisierungen ..."},
    {0, "startup.preparing_user_interface", "Preparing user interface ...",
     "Bereite Benutzeroberfläche vor ..."},
    {0, "startup.processing_batch", "Processing batch ...", "Verarbeite Batch ..."},
    // Kept: start-up shows this note of the slide show beside the settings
    // file it loads, by its number.
    {1083, "slideshow.save_picture_note",
     "Note: Pictures of the slide show are saved as they are shown on the screen.",
     "Hinweis: Bilder der Diashow werden so gespeichert, wie sie auf dem Bildschirm angezeigt "
     "werden."},

    // Crash recovery.
    {1030, "startup.options_reset_log",
     "Set all options to defaults while previous execution failed",
     "Alle Optionen auf Standardwerte gesetzt, da die vorherige Ausführung fehlgeschlagen ist"},
    {0, "startup.attention_title", "ATTENTION!", "ACHTUNG!"},

    // The update question.
    {770, "update.new_version_start", "A new version (", "Eine neue Version ("},
    {771, "update.new_version_end", ") is available.", ") ist verfügbar."},
    {0, "update.visit_download_page", "Do you want to visit the download page?",
     "Wollen Sie die Download-Seite besuchen?"},
    {0, "update.title", "Update", "Aktualisierung"},

    // Log entries of a start that succeeded.
    {0, "startup.log.started_successfully", "Started Tarnwick successfully",
     "Tarnwick erfolgreich gestartet"},
    {0, "startup.log.initialize_with", "Initialize with '", "Initialisiert mit '"},
    {0, "startup.log.files_comma", " files, ", " Dateien, "},
    // Undo batches of runs that were killed, completed at start-up.
    {0, "startup.log.interrupted_run", "Interrupted run", "Unterbrochener Lauf"},
    {0, "startup.log.batch_completed", "Completed the undo batch of an interrupted run '",
     "Undo-Batch eines unterbrochenen Laufs vervollständigt '"},
    {0, "startup.log.batch_not_completed",
     "Could not complete the undo batch of an interrupted run '",
     "Undo-Batch eines unterbrochenen Laufs konnte nicht vervollständigt werden '"},
    {0, "batch.log.question_answered", "Question answered in unattended run",
     "Frage in unbeaufsichtigtem Lauf beantwortet"},
    // The program without a window.
    {0, "startup.no_desktop_window",
     "There is no display for the window of Tarnwick. Start an unattended run with: tarnwick "
     "SETTINGS.twr -d",
     "Für das Fenster von Tarnwick ist keine Anzeige vorhanden. Eine unbeaufsichtigte "
     "Umbenennung startet mit: tarnwick EINSTELLUNGEN.twr -d"},

    // Errors of start-up and closing.
    {189, "startup.log.error_subject", "Start Tarnwick (ERROR)", "Tarnwick starten (FEHLER)"},
    {0, "startup.log.could_not_start", "!Could not start Tarnwick!",
     "!Tarnwick konnte nicht gestartet werden!"},
    {0, "startup.drive_locked",
     "It seems that another application locks an drive. To unlock it, you must exit the "
     "application.",
     "Offenbar sperrt eine andere Anwendung ein Laufwerk. Um es freizugeben, müssen Sie diese "
     "Anwendung beenden."},
    {0, "startup.error_title_start", "Tarnwick [", "Tarnwick ["},
    {0, "startup.error_while_starting", "Error occured while starting Tarnwick:",
     "Beim Starten von Tarnwick ist ein Fehler aufgetreten:"},
    {0, "startup.application_will_stop", "Application will be stopped!",
     "Die Anwendung wird beendet!"},
    {0, "close.log.subject", "QueryUnload", "QueryUnload"},

    // Buttons and labels of the main window. Their wording is ours: the
    // window names only its controls.
    {0, "main.button.start", "Start", "Start"},
    {0, "main.button.exit", "Exit", "Beenden"},
    {0, "main.button.delete", "Delete", "Löschen"},
    {0, "main.button.select_all", "Select all", "Alle auswählen"},
    {0, "main.button.deselect_all", "Deselect all", "Auswahl aufheben"},
    {0, "main.button.invert", "Invert selection", "Auswahl umkehren"},
    {0, "main.button.search", "Search", "Suchen"},
    {0, "main.button.slide_show", "Slide show", "Diashow"},
    {0, "main.button.picture_preview", "Picture preview", "Bildvorschau"},
    {0, "main.label.loaded_setting", "Loaded settings file:", "Geladene Einstellungsdatei:"},

    // Menus of the main window. The menu items of compressing and resizing
    // pictures are the job titles 647 and 975.
    {0, "main.menu.file", "File", "Datei"},
    {0, "main.menu.view", "View", "Ansicht"},
    {0, "main.menu.tools", "Tools", "Extras"},
    {0, "main.menu.options", "Options", "Optionen"},
    {0, "main.menu.help", "Help", "Hilfe"},
    {0, "main.menu.refresh", "Refresh file list", "Dateiliste aktualisieren"},
    {0, "main.menu.view_list", "List", "Liste"},
    {0, "main.menu.view_details", "Details", "Details"},
    {0, "main.menu.view_symbols", "Symbols", "Symbole"},
    {0, "main.menu.sort_by_name", "Sort by name", "Nach Name sortieren"},
    {0, "main.menu.rename", "Rename ...", "Umbenennen ..."},
    {0, "main.menu.move_copy_files", "Copy/move files ...", "Dateien kopieren/verschieben ..."},
    {0, "main.menu.rename_from_file", "Rename from text file ...", "Umbenennen aus Textdatei ..."},
    {0, "main.menu.split_files", "Split file(s) ...", "Datei(en) teilen ..."},
    {0, "main.menu.merge_files", "Merge file(s) ...", "Datei(en) zusammenfügen ..."},
    {0, "main.menu.secure_delete", "Secure delete files ...", "Dateien sicher löschen ..."},
    {0, "main.menu.compress_to_jpg", "Compress picture files to JPEG ...",
     "Bilddateien nach JPEG komprimieren ..."},
    {0, "main.menu.resize_pictures", "Resize picture ...", "Bildgröße ändern ..."},
    {0, "main.menu.md5_checksums", "Create MD5 checksums", "MD5-Prüfsummen erstellen"},
    {0, "main.menu.sha256_checksums", "Create SHA256 checksums", "SHA256-Prüfsummen erstellen"},
    {0, "main.menu.export_text", "Export file list as text ...",
     "Dateiliste als Text exportieren ..."},
    {0, "main.menu.export_xml", "Export file list as XML ...",
     "Dateiliste als XML exportieren ..."},
    {0, "main.menu.playlist_editor", "Playlist editor ...", "Playlist-Editor ..."},
    {0, "main.menu.tag_editor", "MP3 tag editor ...", "MP3-Tag-Editor ..."},
    {0, "main.menu.media_info", "Show MP3 information ...", "MP3-Informationen anzeigen ..."},
    {0, "main.menu.exif_info", "Show JPEG EXIF information ...",
     "JPEG-EXIF-Informationen anzeigen ..."},
    // Labels, menus and dialogue parts of the desktop window.
    {0, "main.label.with", "with", "durch"},
    {0, "main.label.extension_filter", "Extension:", "Erweiterung:"},
    {0, "main.label.include_subfolders", "Include subfolders", "Unterordner einbeziehen"},
    {0, "main.label.action_order", "Order:", "Reihenfolge:"},
    {0, "main.label.folders", "Folders", "Ordner"},
    {0, "main.mode.copy", "Create copy", "Kopie erstellen"},
    {0, "main.numbering.start", "Start:", "Start:"},
    {0, "main.numbering.files_per_number", "Files per number:", "Dateien je Nummer:"},
    {0, "main.button.save_settings", "Save settings", "Einstellungen speichern"},
    {0, "main.menu.load_settings", "Load settings ...", "Einstellungen laden ..."},
    {0, "main.menu.save_settings", "Save settings ...", "Einstellungen speichern ..."},
    {0, "main.menu.sort", "Sort", "Sortieren"},
    {0, "main.menu.sort_descending", "Descending", "Absteigend"},
    {0, "main.menu.select", "Selection", "Auswahl"},
    {0, "main.menu.remove_from_list", "Remove from list", "Aus der Liste entfernen"},
    {0, "main.menu.show_log", "Show log file", "Logdatei anzeigen"},
    {0, "main.menu.undo_folder", "Open undo folder", "Undo-Ordner öffnen"},
    {0, "main.menu.action_order", "Action order ...", "Reihenfolge der Aktionen ..."},
    {0, "main.menu.placeholder_list", "Placeholder list ...", "Platzhalterliste ..."},
    {0, "main.menu.new_name_column", "Show new names in the list",
     "Neue Namen in der Liste zeigen"},
    {0, "main.status.collisions", "%1 new names collide", "%1 neue Namen kollidieren"},
    {0, "main.status.collision_one", "1 new name collides", "1 neuer Name kollidiert"},
    // Undo of the last run from the window; the words are ours.
    {0, "main.menu.undo_last_run", "Undo last run", "Letzten Lauf rückgängig machen"},
    // The log viewer of our own and the undo folder, where no desktop
    // application opens them.
    {0, "log_viewer.title", "Log", "Log"},
    {0, "log_viewer.search", "Search:", "Suchen:"},
    {0, "log_viewer.find_next", "Find next", "Weitersuchen"},
    {0, "log_viewer.no_log", "There is no log file yet:", "Es gibt noch keine Logdatei:"},
    {0, "log_viewer.only_the_end", "The log is large: only its last 16 MB are shown.",
     "Das Log ist groß: Nur die letzten 16 MB werden angezeigt."},
    {0, "undo_folder.title", "Undo folder", "Undo-Ordner"},
    {0, "undo_folder.no_file_manager",
     "No file manager opened the undo folder. The undo batches are in:",
     "Kein Dateimanager hat den Undo-Ordner geöffnet. Die Undo-Batches liegen in:"},
    {0, "undo_folder.missing", "The undo folder does not exist yet:",
     "Der Undo-Ordner existiert noch nicht:"},
    {0, "run.summary_title_done", "Run finished", "Lauf beendet"},
    {0, "run.summary_title_cancelled", "Run cancelled", "Lauf abgebrochen"},
    {0, "run.summary_renamed", "%1 renamed, %2 skipped, %3 failed",
     "%1 umbenannt, %2 übersprungen, %3 fehlgeschlagen"},
    {0, "run.summary_copied", "%1 copied, %2 skipped, %3 failed",
     "%1 kopiert, %2 übersprungen, %3 fehlgeschlagen"},
    {0, "run.summary_show_log", "Show log", "Log anzeigen"},
    {0, "run.summary_undo", "Undo", "Rückgängig"},
    {0, "run.summary_close", "Close", "Schließen"},
    {0, "undo.last_run_question",
     "Take the last run back? %1 file(s) get their former names again (the list shows which).",
     "Den letzten Lauf rückgängig machen? %1 Datei(en) erhalten ihre früheren Namen zurück (die "
     "Liste zeigt welche)."},
    {0, "undo.nothing_to_undo", "There is no run to take back: the undo batch is missing:",
     "Es gibt keinen Lauf zum Rückgängigmachen: der Undo-Batch fehlt:"},
    {0, "main.tip.collision", "Another file has this name already, or another row gets it too",
     "Eine andere Datei hat diesen Namen schon, oder eine andere Zeile bekommt ihn auch"},
    {0, "main.status.new_names", "New names: %1", "Neue Namen: %1"},
    {0, "main.tip.placeholder_button", "Choose a placeholder", "Platzhalter wählen"},
    {0, "main.tip.text_field",
     "Text for the new names: {{...}} placeholders are filled in for each file; the button "
     "beside lists them",
     "Text für die neuen Namen: {{...}}-Platzhalter werden für jede Datei ersetzt; die "
     "Schaltfläche daneben listet sie auf"},
    {0, "order.button_up", "Up", "Nach oben"},
    {0, "order.button_down", "Down", "Nach unten"},
    {0, "result_list.title", "Files to be created", "Zu erstellende Dateien"},
    {0, "result_list.copy_to_clipboard", "Copy to clipboard", "In die Zwischenablage kopieren"},
    {0, "result_list.create_batch", "Create batch ...", "Batch erstellen ..."},
    {0, "result_list.close", "Close", "Schließen"},
    {0, "options.title", "Options", "Optionen"},
    {0, "options.tab_file_list", "File list", "Dateiliste"},
    {0, "options.tab_renaming", "Renaming", "Umbenennen"},
    {0, "options.tab_log_undo", "Log and undo", "Log und Undo"},
    {0, "options.tab_program", "Program", "Programm"},
    {0, "options.tab_pictures", "Pictures", "Bilder"},
    {0, "options.use_exif_date", "JPEG files take the date from the EXIF header",
     "JPEG-Dateien nehmen das Datum aus dem EXIF-Kopf"},
    {0, "options.file_date_type", "File date:", "Dateidatum:"},
    {0, "options.date_separator", "Separator in dates:", "Trennzeichen in Datumsangaben:"},
    {0, "options.time_separator", "Separator in times:", "Trennzeichen in Zeitangaben:"},
    {0, "options.count_directories", "Numbering also counts folders",
     "Nummerierung zählt auch Ordner"},
    {0, "options.write_log_file", "Write log file", "Logdatei schreiben"},
    {0, "options.log_file_path", "Log file:", "Logdatei:"},
    {0, "options.undo_file_path", "Folder of the undo batches:", "Ordner der Undo-Batches:"},
    {0, "options.ready_sound_path", "Sound file:", "Sounddatei:"},
    {0, "options.format_mp3_track",
     "Format MP3 Track Tag {{mp3IDTagV2_track}} always with two digits",
     "MP3-Track-Tag {{mp3IDTagV2_track}} immer zweistellig formatieren"},
    {0, "options.copy_path",
     "Target folder of the copy button:", "Zielordner der Kopieren-Schaltfläche:"},
    {0, "options.preview_mode", "Picture preview mode %1", "Modus der Bildvorschau %1"},
    {0, "options.button_ok", "OK", "OK"},
    {0, "options.button_cancel", "Cancel", "Abbrechen"},
    {0, "settings_file.browse", "...", "..."},
};

}  // namespace

std::span<const MessageEntry> Shell() { return kEntries; }

}  // namespace tarnwick::message_data
