#include "shell/message_data.h"

// Texts of the playlist editor: its window, the copy and move of titles, the
// check, the correction, the shuffle, the search for lost files and the
// questions around editing and saving.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // The window. Its title, the column headings and the captions of the
    // buttons and menu items are ours: the window names only its controls.
    {0, "playlist.title", "Playlist editor", "Playlist-Editor"},
    {0, "playlist.column.title", "Title", "Titel"},
    {0, "playlist.column.length", "Length", "Länge"},
    {0, "playlist.column.path", "Path", "Pfad"},
    {0, "playlist.time", "Time:", "Zeit:"},
    {0, "playlist.always_on_top", "Always on top", "Immer im Vordergrund"},
    {0, "playlist.button.add_title", "Add title", "Titel hinzufügen"},
    {0, "playlist.button.delete", "Delete", "Löschen"},
    {0, "playlist.button.up", "Up", "Nach oben"},
    {0, "playlist.button.down", "Down", "Nach unten"},
    {0, "playlist.button.check_list", "Check list", "Liste prüfen"},
    {0, "playlist.button.copy_files", "Copy files", "Dateien kopieren"},
    {0, "playlist.button.move_files", "Move files", "Dateien verschieben"},
    {0, "playlist.button.load", "Load", "Laden"},
    {0, "playlist.button.save", "Save", "Speichern"},
    {0, "playlist.button.select_all", "Select all", "Alle auswählen"},
    {0, "playlist.button.deselect_all", "Deselect all", "Auswahl aufheben"},
    {0, "playlist.button.copy_to_clipboard", "Copy to clipboard", "In die Zwischenablage kopieren"},
    {0, "playlist.menu.correct_list", "Correct list", "Liste korrigieren"},
    {0, "playlist.menu.correct_item", "Correct title", "Titel korrigieren"},
    {0, "playlist.menu.check_item", "Check title", "Titel prüfen"},
    {0, "playlist.menu.change_path", "Change path", "Pfad ändern"},
    {0, "playlist.menu.lost_files", "Search lost files", "Verlorene Dateien suchen"},
    {0, "playlist.menu.randomize_list", "Randomize list", "Liste zufällig sortieren"},
    {0, "playlist.menu.clear_all", "Clear all", "Alles löschen"},
    {0, "playlist.menu.edit_mp3_tags", "Edit MP3 tags", "MP3-Tags bearbeiten"},

    // The file dialogue of saving; its filter stands literally in both
    // languages.
    {0, "playlist.save_filter", "M3U Playlist (*.m3u)|*.m3u|PST Playlist (*.pls)|*.pls",
     "M3U Playlist (*.m3u)|*.m3u|PST Playlist (*.pls)|*.pls"},

    // Copy and move of titles.
    {0, "playlist.please_select_folder", "Please select folder", "Bitte Ordner auswählen"},
    {0, "playlist.file_does_not_exist", "File doesn't exist:", "Datei existiert nicht:"},
    {0, "playlist.copying", "Copying:", "Kopiere:"},
    {0, "playlist.moving", "Moving:", "Verschiebe:"},
    {0, "playlist.action_successful", "Action successfull!", "Aktion erfolgreich!"},
    {0, "playlist.copy_titles_title", "Copy playlist titles", "Playlist-Titel kopieren"},
    {0, "playlist.move_titles_title", "Move playlist titles", "Playlist-Titel verschieben"},
    {0, "playlist.files_not_copied", "files not found an not copied!",
     "Dateien nicht gefunden und nicht kopiert!"},
    {0, "playlist.files_not_moved", "files not found an not moved!",
     "Dateien nicht gefunden und nicht verschoben!"},

    // Checking the list.
    {0, "playlist.check_title", "Check playlist", "Playlist prüfen"},
    {0, "playlist.no_missing_files", "No missing files found!",
     "Keine fehlenden Dateien gefunden!"},
    {0, "playlist.files_red_marked", "files not found and are red marked!",
     "Dateien nicht gefunden und rot markiert!"},
    {0, "playlist.remove_missing_question", "Do you wish to remove the files now?",
     "Wollen Sie die Dateien jetzt entfernen?"},
    {0, "playlist.missing_removed", "not found files removed from list.",
     "nicht gefundene Dateien aus der Liste entfernt."},

    // Correcting titles from the tags.
    {0, "playlist.correct_list_question",
     "Do you really wish to correct all titles of the list (Format: Artist - Title)?",
     "Wollen Sie wirklich alle Titel der Liste korrigieren (Format: Interpret - Titel)?"},
    {0, "playlist.correct_list_title", "Correct list", "Liste korrigieren"},
    {0, "playlist.all_corrected", "All titles successfully corrected.",
     "Alle Titel erfolgreich korrigiert."},
    {0, "playlist.not_corrected", "Titles could not be corrected.",
     "Titel konnten nicht korrigiert werden."},
    {0, "playlist.check_item_title", "Check title", "Titel prüfen"},
    {0, "playlist.correct_item_title", "Correct title", "Titel korrigieren"},

    // Kept: the shuffle asks in German in both languages.
    {0, "playlist.shuffle_question", "Soll die Liste wirklich zufällig sortiert werden?",
     "Soll die Liste wirklich zufällig sortiert werden?"},
    {0, "playlist.shuffle_title", "Zufallsliste", "Zufallsliste"},

    // The search for lost files.
    {0, "playlist.lost.select_search_folder",
     "Please select the search folder. Files that can not be assigned will be marked red.",
     "Bitte wählen Sie den Suchordner aus. Dateien, die nicht zugeordnet werden können, werden "
     "rot markiert."},
    {0, "playlist.lost.search_subfolders", "Do you also want to search in all subfolders?",
     "Wollen Sie auch in allen Unterordnern suchen?"},
    {0, "playlist.lost.searching_in_path", "Searching in path:", "Suche im Pfad:"},
    {0, "playlist.lost.searched_folders", "Searched folders:", "Durchsuchte Ordner:"},
    {0, "playlist.lost.searched_files", "Searched files:", "Durchsuchte Dateien:"},
    {0, "playlist.lost.file", "File:", "Datei:"},
    {0, "playlist.lost.found", "Found:", "Gefunden:"},
    {0, "playlist.lost.ready", "Ready! Searched files:", "Fertig! Durchsuchte Dateien:"},

    // Adding files.
    {0, "playlist.too_many_files", "Too much files!", "Zu viele Dateien!"},
    {0, "playlist.import_songs_title", "Import Songs", "Titel importieren"},

    // Editing, closing and saving.
    {0, "playlist.discard_question", "Close dialog and discard changes?",
     "Dialog schließen und Änderungen verwerfen?"},
    {0, "playlist.discard_title", "Discard changes?", "Änderungen verwerfen?"},
    {0, "playlist.clear_all_question", "Really delete all entries?",
     "Wirklich alle Einträge löschen?"},
    {0, "playlist.clear_all_title", "Delete all entries", "Alle Einträge löschen"},
    {0, "playlist.remove_entry_question", "Really remove selected entry from list?",
     "Ausgewählten Eintrag wirklich aus der Liste entfernen?"},
    {0, "playlist.remove_entry_title", "Delete entry", "Eintrag löschen"},
    {0, "playlist.cannot_save_empty", "Can't save empty playlist.",
     "Eine leere Playlist kann nicht gespeichert werden."},
    {0, "playlist.not_supported", "File is no supported playlist and can't be loaded!",
     "Die Datei ist keine unterstützte Playlist und kann nicht geladen werden!"},

    // Ours: the menu of the window, the file dialogues' filters, and what
    // loading and saving can meet on this system.
    {0, "playlist.menu.list", "List", "Liste"},
    {0, "playlist.menu.open_editor", "Playlist editor ...", "Playlist-Editor ..."},
    {0, "playlist.filter_playlists", "Playlists", "Playlists"},
    {0, "playlist.filter_audio", "Audio files", "Audiodateien"},
    {0, "playlist.replace_question", "The file already exists. Do you want to replace it?",
     "Die Datei existiert bereits. Wollen Sie sie ersetzen?"},
    {0, "playlist.save_failed", "The playlist could not be saved:",
     "Die Playlist konnte nicht gespeichert werden:"},
    {0, "playlist.load_failed", "The playlist could not be read:",
     "Die Playlist konnte nicht gelesen werden:"},
    {0, "playlist.unstorable_path",
     "This path holds a line break, which no playlist can store. Remove the title or change its "
     "path:",
     "Dieser Pfad enthält einen Zeilenumbruch, den keine Playlist speichern kann. Entfernen Sie "
     "den Titel oder ändern Sie seinen Pfad:"},
    {0, "playlist.targets_exist", "files are already in the folder and were left as they are.",
     "Dateien sind bereits im Ordner und wurden nicht verändert."},
    {0, "playlist.copy_failed", "files could not be copied or moved:",
     "Dateien konnten nicht kopiert oder verschoben werden:"},
    {0, "playlist.copy_cancelled", "Cancelled.", "Abgebrochen."},
    {0, "playlist.tag_editor_missing", "The tag editor is not available yet.",
     "Der Tag-Editor ist noch nicht verfügbar."},
};

}  // namespace

std::span<const MessageEntry> Playlist() { return kEntries; }

}  // namespace tarnwick::message_data
