#include "shell/message_data.h"

// Texts of the file list: its columns, the fill of a folder with its status
// lines and log entries, and the text and XML exports of the list.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Column headings of the list. "Size" and "Path" are the report words 226
    // and 250; the date heading is the text of the option FileDateType.
    {0, "filelist.column.name", "Name", "Name"},
    {0, "filelist.column.type", "Type", "Typ"},
    {0, "filelist.column.attributes", "Attributes", "Attribute"},
    {0, "filelist.column.mediainfo", "Mediainfo", "Medieninfo"},
    {0, "filelist.column.foldername", "Foldername", "Ordnername"},
    {0, "filelist.column.jpeg_exif_date", "JPEG EXIF Date", "JPEG-EXIF-Datum"},

    // Type texts the list shows as they stand in every language: the first
    // entry of the type cache and the fixed entries of four extensions.
    {0, "filelist.type_cache.folder", "|Folder=Verzeichnis|", "|Folder=Verzeichnis|"},
    {0, "filelist.type_cache.fixed", "|zico=Symbol|zexe=Anwendung|zlnk=Verknüpfung|zcur=Cursor|",
     "|zico=Symbol|zexe=Anwendung|zlnk=Verknüpfung|zcur=Cursor|"},

    // Filling the list.
    {0, "filelist.label_files", "Files:", "Dateien:"},
    {0, "filelist.wait_reading_directory", "Wait, reading directory ...",
     "Bitte warten, Verzeichnis wird gelesen ..."},
    {0, "filelist.files_count", "File(s):", "Datei(en):"},
    {0, "filelist.icons_deactivated",
     "Due to avoid performance problems, the icons in the filelist while be deactivated. If you "
     "can activate this feature later under the \"Options' menu.",
     "Um Leistungsprobleme zu vermeiden, werden die Symbole in der Dateiliste abgeschaltet. Sie "
     "können diese Funktion später im Menü \"Optionen\" wieder einschalten."},
    {0, "filelist.log.view_folder_subject", "ViewFolder", "ViewFolder"},
    {0, "filelist.log.user_terminated_fill", "!User terminated filling file list with ESC",
     "!Füllen der Dateiliste vom Benutzer mit ESC abgebrochen"},
    {0, "filelist.log.changed_directory_subject",
     "Changed directory to: ", "Verzeichnis gewechselt zu: "},
    {0, "filelist.log.changed_directory_text", "Changed directory (", "Verzeichnis gewechselt ("},
    {0, "filelist.log.files_in", " files in ", " Dateien in "},

    // A folder that cannot be read.
    {166, "filelist.an_error_occured", "An error occured:", "Ein Fehler ist aufgetreten:"},
    {0, "filelist.get_files_source", "GetFiles", "GetFiles"},
    {0, "filelist.log.reading_files_subject", "Reading files", "Dateien lesen"},
    {0, "filelist.log.error_reading_files",
     "Error reading files: ", "Fehler beim Lesen der Dateien: "},

    // Column choice dialogues of the exports. The wording of their captions
    // is ours: the dialogues name only their controls.
    {0, "export.select_text.title", "Text export", "Textexport"},
    {0, "export.select_xml.title", "XML export", "XML-Export"},
    {0, "export.columns_frame", "Columns", "Spalten"},
    {0, "export.only_selected", "Only selected files", "Nur ausgewählte Dateien"},
    {0, "export.include_subdirs", "Include subdirectories", "Unterverzeichnisse einbeziehen"},
    {0, "export.number_of_files", "Number of files", "Anzahl der Dateien"},
    {0, "export.date_time", "Date and time", "Datum und Uhrzeit"},
    {0, "export.delimiter_frame", "Delimiter", "Trennzeichen"},
    {0, "export.delimiter_tab", "Tabstop", "Tabulator"},
    {0, "export.delimiter_tabs_count", "Number of tabs:", "Anzahl Tabulatoren:"},
    {0, "export.delimiter_semicolon", "Semicolon", "Semikolon"},
    {0, "export.delimiter_other", "Other:", "Anderes:"},
    {0, "export.parse_invalid_chars", "Convert invalid characters", "Ungültige Zeichen umwandeln"},

    // The report window's buttons; our words.
    {0, "report.save", "Save ...", "Speichern ..."},
    {0, "report.close", "Close", "Schließen"},
    {0, "report.print", "Print ...", "Drucken ..."},
    {0, "report.print_preview", "Print preview ...", "Druckvorschau ..."},
    {0, "report.print_title", "Print report", "Bericht drucken"},
    {0, "report.print_preview_title", "Print preview", "Druckvorschau"},
    {0, "report.save_title", "Save report", "Bericht speichern"},
    {0, "report.filter_text", "Text files", "Textdateien"},
    {0, "report.filter_all", "All files", "Alle Dateien"},
    {0, "report.md5_title", "MD5 checksums", "MD5-Prüfsummen"},
    {0, "report.sha256_title", "SHA256 checksums", "SHA256-Prüfsummen"},

    // The text export and its report window.
    {0, "export.text_window_title", "Create textfile", "Textdatei erstellen"},
    {0, "export.processing_subdir", "Processing subdir", "Bearbeite Unterverzeichnis"},
    {0, "export.folder_marker", "[Folder]", "[Ordner]"},
    {0, "export.file_folder_type", "File Folder", "Dateiordner"},
    {0, "export.processing_file", "Processing file", "Bearbeite Datei"},
    {0, "export.folders_count", "Folders:", "Ordner:"},
    {0, "export.canceled_text", "Process canceled by user, data may not be transfered right.",
     "Vorgang vom Benutzer abgebrochen, die Daten wurden eventuell nicht vollständig "
     "übertragen."},
    {0, "export.canceled_title", "Process canceled.", "Vorgang abgebrochen."},

    // The XML export: its save dialogue and status.
    {0, "export.xml_save_title", "Save current filestructure to xml",
     "Aktuelle Dateistruktur als XML speichern"},
    {0, "export.xml_document_filter", "XML-Document", "XML-Dokument"},
    {0, "export.progressing_file", "Progressing file", "Bearbeite Datei"},
};

}  // namespace

std::span<const MessageEntry> FileList() { return kEntries; }

}  // namespace tarnwick::message_data
