#include "shell/message_data.h"

// Texts of the tools on the selected files: copy and move, rename from a text
// file, split and merge, secure delete, checksums and file dates.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Copy and move: the dialogue. Its title is ours.
    {0, "copymove.title", "Copy or move files", "Dateien kopieren oder verschieben"},
    {0, "copymove.action_copy", "Copy", "Kopieren"},
    {0, "copymove.action_move", "Move", "Verschieben"},
    {0, "copymove.target_directory", "Target directory:", "Zielverzeichnis:"},
    {0, "copymove.select_destination_directory", "Select destination directory",
     "Zielverzeichnis auswählen"},
    {0, "copymove.overwrite_existing_files", "Overwrite existing files",
     "Vorhandene Dateien überschreiben"},
    {0, "copymove.save_path", "Save path", "Pfad speichern"},
    {0, "copymove.only_create_batch", "Only create and save batch file",
     "Nur Batchdatei erstellen und speichern"},
    {0, "copymove.append_to_batch", "Append to existing batchfile",
     "An vorhandene Batchdatei anhängen"},
    {0, "copymove.change_file_date_time", "Change file date and time",
     "Dateidatum und -uhrzeit ändern"},
    {0, "copymove.date", "Date:", "Datum:"},
    {0, "copymove.time", "Time:", "Uhrzeit:"},
    {0, "copymove.days", "Days", "Tage"},
    {0, "copymove.months", "Months", "Monate"},
    {0, "copymove.years", "Years", "Jahre"},
    {0, "copymove.hours", "Hours", "Stunden"},
    {0, "copymove.minutes", "Minutes", "Minuten"},
    {0, "copymove.seconds", "Seconds", "Sekunden"},
    {0, "copymove.set_date", "Set", "Setzen"},
    {0, "copymove.add_date", "Add", "Addieren"},
    {0, "copymove.subtract_date", "Subtract", "Subtrahieren"},

    // Copy and move: the echo lines of the batch script and the progress.
    {0, "copymove.batch.created_with", "Batchfile created with Tarnwick on",
     "Batchdatei erstellt mit Tarnwick am"},
    {0, "copymove.batch.files", "File(s)", "Datei(en)"},
    {0, "copymove.batch.copying_file", "Copying file", "Kopiere Datei"},
    {0, "copymove.batch.rename_file", "Rename file", "Verschiebe Datei"},
    {0, "tools.processing", "Processing:", "Bearbeite:"},
    {0, "tools.files_failed", "%1 file(s) could not be done (each is in the log):",
     "%1 Datei(en) konnten nicht bearbeitet werden (jede steht im Protokoll):"},
    // Our own words for a target folder that cannot take the files.
    {0, "copymove.target_missing", "The target directory does not exist:",
     "Das Zielverzeichnis existiert nicht:"},
    {0, "copymove.target_not_writable", "The target directory cannot be written to:",
     "In das Zielverzeichnis kann nicht geschrieben werden:"},

    // Rename from a text file: the dialogue. Its title is ours.
    {0, "renamefile.title", "Rename from text file", "Umbenennen aus Textdatei"},
    {0, "renamefile.file_size", "File size:", "Dateigröße:"},
    {0, "renamefile.rows", "Rows:", "Zeilen:"},
    {0, "renamefile.words", "Words:", "Wörter:"},
    {0, "renamefile.load_text_file", "Load text file", "Textdatei laden"},
    {0, "renamefile.view_file", "View file", "Datei anzeigen"},
    {0, "renamefile.start", "Start", "Start"},
    {0, "renamefile.bytes_suffix", " Bytes", " Bytes"},
    {0, "renamefile.csv_filter", "CSV (separated)", "CSV (getrennt)"},

    // Rename from a text file: validation and start.
    {0, "renamefile.report.row", "Row", "Zeile"},
    {0, "renamefile.report.char", "Char", "Zeichen"},
    {0, "renamefile.failed_validation_title", "Failed validation", "Prüfung fehlgeschlagen"},
    {0, "renamefile.invalid_chars_found",
     "The following invalid chars are found in text file while validating:",
     "Beim Prüfen wurden folgende ungültige Zeichen in der Textdatei gefunden:"},
    {0, "renamefile.correct_and_reload", "Please correct the errors and load the file again!",
     "Bitte korrigieren Sie die Fehler und laden Sie die Datei erneut!"},
    {0, "renamefile.count_mismatch",
     "Attention: The amount of selected files in the main dialog must be equal to the rows in "
     "the text file to execute the job!",
     "Achtung: Die Anzahl der im Hauptfenster ausgewählten Dateien muss der Anzahl der Zeilen in "
     "der Textdatei entsprechen, damit der Auftrag ausgeführt werden kann!"},
    {0, "renamefile.confirm_text", "Are you sure to proceed?", "Wollen Sie wirklich fortfahren?"},
    {0, "renamefile.confirm_title", "Start rename from file", "Umbenennen aus Datei starten"},
    // Our own words for a file that gives no names.
    {0, "renamefile.cannot_read", "The text file cannot be read:",
     "Die Textdatei kann nicht gelesen werden:"},
    {0, "renamefile.not_a_text_file", "This is not a text file of names (it holds zero bytes):",
     "Dies ist keine Textdatei mit Namen (sie enthält Null-Bytes):"},

    // Split.
    {0, "split.title", "Split file(s)", "Datei(en) teilen"},
    {0, "split.size", "Size:", "Größe:"},
    {0, "split.measure", "Measure:", "Einheit:"},
    {0, "split.unit_megabytes", "Megabytes", "Megabyte"},
    {0, "split.unit_kilobytes", "Kilobytes", "Kilobyte"},
    {0, "split.unit_bytes", "Bytes", "Byte"},
    {0, "split.unit_count", "Count", "Anzahl"},
    {0, "split.file_extension", "File extension:", "Dateierweiterung:"},
    {0, "split.destination",
     "Destination (if nothing selected = source):", "Ziel (wenn nichts ausgewählt = Quelle):"},
    {0, "split.sort_files", "Sort files alphanumerical before",
     "Dateien vorher alphanumerisch sortieren"},
    {0, "split.create_merge_batch", "Create batch file for merge",
     "Batchdatei zum Zusammenfügen erstellen"},
    {0, "split.delete_source_files", "Delete source files automatically",
     "Quelldateien automatisch löschen"},
    {0, "split.size_at_least_one", "You must enter a size => 1!",
     "Sie müssen eine Größe => 1 eingeben!"},
    {0, "split.count_greater_one", "You must enter a size greater 1 to proceed!",
     "Sie müssen eine Größe größer 1 eingeben, um fortzufahren!"},
    {0, "split.pieces_exist", "The file(s) for splitting already exists, process cancelled! ",
     "Die Datei(en) zum Teilen existieren bereits, Vorgang abgebrochen! "},
    {0, "split.cannot_split", "Cannot split file:", "Datei kann nicht geteilt werden:"},
    // Our words around the split: the log lines and what the dialogue adds.
    {0, "split.not_split", "Not split (no larger than one piece), kept:",
     "Nicht geteilt (nicht größer als ein Teil), behalten:"},
    {0, "split.pieces_written", "%1 piece(s)", "%1 Teil(e)"},
    {0, "split.cancelled_in_file", "Cancelled; the pieces written so far are kept, and the source:",
     "Abgebrochen; die bisher geschriebenen Teile bleiben, ebenso die Quelle:"},

    // Merge.
    {0, "merge.title", "Merge file(s)", "Datei(en) zusammenfügen"},
    {0, "merge.destination_file", "Destination file:", "Zieldatei:"},
    {0, "merge.only_with_text", "Only files containing:", "Nur Dateien mit:"},
    {0, "merge.select_destination_first", "You must select a destination file before proceeding.",
     "Sie müssen eine Zieldatei auswählen, bevor Sie fortfahren."},
    {0, "merge.target_exists", "The file for joining exists already, process was cancelled!",
     "Die Datei zum Zusammenfügen existiert bereits, der Vorgang wurde abgebrochen!"},
    // Our addition: a merge into one of its own sources is refused.
    {0, "merge.target_is_source",
     "The destination file is one of the files to merge. Choose another destination file.",
     "Die Zieldatei ist eine der zusammenzufügenden Dateien. Wählen Sie eine andere Zieldatei."},
    // Kept: the merge shows the split tool's words; this text is never shown.
    {0, "merge.cannot_merge", "Cannot merge file:", "Datei kann nicht zusammengefügt werden:"},

    // Secure delete.
    {0, "shredder.confirm_text",
     "Are you sure you want to secure delete the selected files? Later recovery of the %1 files "
     "is NOT possible. Also the operation can take a while!",
     "Wollen Sie die ausgewählten Dateien wirklich sicher löschen? Eine spätere "
     "Wiederherstellung der %1 Dateien ist NICHT möglich. Außerdem kann der Vorgang eine Weile "
     "dauern!"},
    {0, "shredder.confirm_title", "Secure file deleting ...", "Sicheres Löschen von Dateien ..."},
    {0, "shredder.passes", "passes", "Durchgänge"},
    {0, "shredder.deleting", "Deleting:", "Lösche:"},
    {0, "shredder.log_subject", "Secure file delete (Shredder)",
     "Sicheres Löschen von Dateien (Shredder)"},
    {0, "shredder.checking_file", "Checking file ...", "Prüfe Datei ..."},
    {0, "shredder.write_protected_text",
     "The file is write-protected. Do you want to delete it anyway?",
     "Die Datei ist schreibgeschützt. Wollen Sie sie trotzdem löschen?"},
    {0, "shredder.write_protected_title", "Remove write-protection?", "Schreibschutz entfernen?"},
    {0, "shredder.loading_file", "Loading file ...", "Lade Datei ..."},
    {0, "shredder.overwritten", "[Overwritten:", "[Überschrieben:"},
    // Our words around the secure delete.
    {0, "shredder.what_overwriting_cannot_do",
     "Overwriting reaches the disk blocks only where the file system writes in place (ext4, XFS). "
     "On SSDs, USB sticks and SD cards the controller may keep old blocks, and copy-on-write or "
     "journalling file systems (btrfs, ZFS, ext4 with data journalling) and snapshots may keep "
     "older copies: there a deletion cannot be promised to be unrecoverable.",
     "Das Überschreiben erreicht die Blöcke nur, wo das Dateisystem an Ort und Stelle schreibt "
     "(ext4, XFS). Auf SSDs, USB-Sticks und SD-Karten kann der Controller alte Blöcke behalten, "
     "und Copy-on-Write- oder Journaling-Dateisysteme (btrfs, ZFS, ext4 mit Daten-Journal) sowie "
     "Snapshots können ältere Kopien behalten: Dort kann nicht zugesichert werden, dass die "
     "Löschung unwiederbringlich ist."},
    {0, "shredder.symbolic_link",
     "A symbolic link is not followed. To shred the file it points to, select that file itself.",
     "Einer symbolischen Verknüpfung wird nicht gefolgt. Um die Datei zu schreddern, auf die sie "
     "zeigt, wählen Sie diese Datei selbst aus."},
    {0, "shredder.in_use", "The file is open in another program and was not touched.",
     "Die Datei ist in einem anderen Programm geöffnet und wurde nicht angetastet."},
    {0, "shredder.renamed_to", "renamed for overwriting to", "zum Überschreiben umbenannt in"},

    // Checksums.
    {0, "checksum.action_in_progress", "Action in progress, please wait ...",
     "Aktion wird ausgeführt, bitte warten ..."},

    // File dates.
    {0, "filedate.error_in_change", "Error in ChangeFileDateAndTime",
     "Fehler in ChangeFileDateAndTime"},
    {0, "filedate.error_number", "Error #", "Fehler #"},
};

}  // namespace

std::span<const MessageEntry> FileTools() { return kEntries; }

}  // namespace tarnwick::message_data
