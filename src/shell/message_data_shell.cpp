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
     "The desktop window of Tarnwick is not built yet. Start an unattended run with: tarnwick "
     "SETTINGS.twr -d",
     "Das Fenster von Tarnwick ist noch nicht gebaut. Eine unbeaufsichtigte Umbenennung startet "
     "mit: tarnwick EINSTELLUNGEN.twr -d"},

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
    {0, "main.menu.md5_checksums", "Create MD5 checksums", "MD5-Prüfsummen erstellen"},
    {0, "main.menu.sha256_checksums", "Create SHA256 checksums", "SHA256-Prüfsummen erstellen"},
    {0, "main.menu.export_text", "Export file list as text ...",
     "Dateiliste als Text exportieren ..."},
    {0, "main.menu.export_xml", "Export file list as XML ...",
     "Dateiliste als XML exportieren ..."},
    {0, "main.menu.playlist_editor", "Playlist editor ...", "Playlist-Editor ..."},
};

}  // namespace

std::span<const MessageEntry> Shell() { return kEntries; }

}  // namespace tarnwick::message_data
