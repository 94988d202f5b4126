#include "shell/message_data.h"

// Texts of the placeholder engine and of the placeholder picker.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Expansion faults, written to the log.
    {0, "placeholders.log_converting_failed", "Converting placeholders failed",
     "Umwandeln der Platzhalter fehlgeschlagen"},
    {0, "placeholders.log_convert_multiple", "ConvertExpressionMultiple",
     "ConvertExpressionMultiple"},
    {0, "placeholders.overflow", "!!! OVERFLOW IN CONVERTEXPRESSION !!!",
     "!!! ÜBERLAUF IN CONVERTEXPRESSION !!!"},

    // Month names of {{mm_text}} and its relatives.
    {592, "date.month_january", "January", "Januar"},
    {593, "date.month_february", "February", "Februar"},
    {594, "date.month_march", "March", "März"},
    {595, "date.month_april", "April", "April"},
    {596, "date.month_may", "May", "Mai"},
    {597, "date.month_june", "June", "Juni"},
    {598, "date.month_july", "July", "Juli"},
    {599, "date.month_august", "August", "August"},
    {600, "date.month_september", "September", "September"},
    {601, "date.month_october", "October", "Oktober"},
    {602, "date.month_november", "November", "November"},
    {603, "date.month_december", "December", "Dezember"},

    // The picker.
    {403, "catalogue.column_tag", "Tag", "Tag"},
    {107, "catalogue.column_sample", "Sample", "Beispiel"},
    {396, "catalogue.column_description", "Description", "Beschreibung"},
    {404, "catalogue.title", "Please select replacement tag", "Bitte Platzhalter auswählen"},
    {199, "catalogue.button_cancel", "Cancel", "Abbrechen"},
    {127, "catalogue.separator", "Separator:", "Trennzeichen:"},
    {791, "catalogue.search_label",
     "Type text to search in list:", "Text für die Suche in der Liste eingeben:"},
    {853, "catalogue.current_selected",
     "Current selected replacement tags:", "Aktuell ausgewählte Platzhalter:"},
    {1175, "catalogue.clear_text_field", "Clear text field", "Textfeld leeren"},
    {523, "catalogue.available_patterns",
     "Current available patterns:", "Aktuell verfügbare Platzhalter:"},
    {854, "catalogue.selected_in_main_dialogue", "[Currently selected in main dialogue]",
     "[Aktuell im Hauptdialog ausgewählt]"},
    {469, "catalogue.append", "Append", "Anhängen"},
    {470, "catalogue.overwrite", "Overwrite", "Überschreiben"},
    {471, "catalogue.insert_at_cursor", "Insert at cursorposition", "An Cursorposition einfügen"},
    {472, "catalogue.to_clipboard", "To clipboard", "In die Zwischenablage"},
    {1176, "catalogue.manual_and_overwrite", "Manual and Overwrite:", "Manuell und überschreiben:"},
    {1076, "catalogue.span_placeholder",
     "Special placeholder: Replaces text from before the placeholder to the text after the "
     "placeholder.",
     "Spezieller Platzhalter: Ersetzt den Text von vor dem Platzhalter bis zum Text nach dem "
     "Platzhalter."},

    // Samples and descriptions of the picker's rows that are known by number
    // or quoted word for word. The German words match the picker's own rows.
    {450, "catalogue.sample_parent_folder", "MyPictures", "EigeneBilder"},
    {1197, "catalogue.set_attribute_archive", "Sets the file attribute 'Archive'",
     "Setzt das Dateiattribut 'Archiv'"},
    {0, "catalogue.filedate_year_month_day", "Filedate Year.Month.Day",
     "Dateidatum Jahr.Monat.Tag"},
    {0, "catalogue.week", "Week", "Woche"},
    {0, "catalogue.current_date_dots", "Current Date (Today) Day.Month.Year",
     "Aktuelles Datum (Heute) Tag.Monat.Jahr"},
    {0, "catalogue.current_time_hyphens", "Current Time (Now) Hour-Minute-Second",
     "Aktuelle Zeit (Jetzt) Stunde-Minute-Sekunde"},
    {0, "catalogue.count", "Numbering as choosen in settings",
     "Nummerierung wie in den Einstellungen gewählt"},
    {0, "catalogue.mediainfo", "Mediainfo (Eg. Picturesize in Pixel)",
     "Medieninfo (z.B. Bildgröße in Pixel)"},
    {0, "catalogue.parent_folder", "Name of the parent folder", "Name des übergeordneten Ordners"},
    {0, "catalogue.first_char_upper", "First char upper case", "Erstes Zeichen als Großbuchstabe"},
    {0, "catalogue.insert_space", "Insert space", "Leerzeichen einfügen"},
    {0, "catalogue.real_length", "Reads out the length (calculated)",
     "Liest die Länge aus (berechnet)"},
    {0, "catalogue.playlist_delay", "Number of milliseconds between the songs",
     "Anzahl der Millisekunden zwischen den Liedern"},
    {0, "catalogue.isrc", "Contains the International Standard Recording Code (ISRC)",
     "Enthält den International Standard Recording Code (ISRC)"},
    {0, "catalogue.bitrate", "Bitrate of the file", "Bitrate der Datei"},
    {0, "catalogue.trim", "Remove spaces left & right from filename",
     "Leerzeichen links & rechts vom Dateinamen entfernen"},
    {0, "catalogue.remove_numbers", "Remove numbers from filename",
     "Ziffern aus dem Dateinamen entfernen"},
    {0, "catalogue.set_exif_date", "Sets JPEG files to EXIF date",
     "Setzt JPEG-Dateien auf das EXIF-Datum"},
    {0, "catalogue.camera_manufacturer", "Name of the DC manufacturer",
     "Name des Kameraherstellers"},
    {0, "catalogue.camera_model", "Name of the DC model", "Name des Kameramodells"},
    {0, "catalogue.focal_plane_unit", "Focal plane resolution unit", "Einheit der Sensorauflösung"},
    {0, "catalogue.unique_id", "Generates a random unique id",
     "Erzeugt eine zufällige eindeutige ID"},
    {0, "catalogue.random_by_file_count", "Random number by selection count",
     "Zufallszahl nach Anzahl der Auswahl"},
    {0, "catalogue.random_by_numbering", "Random number by selection & numbering options",
     "Zufallszahl nach Auswahl & Nummerierungsoptionen"},
    {0, "catalogue.regex", "Use regular expression at 'exp' and replacement parameter at 'rep'  ",
     "Regulären Ausdruck bei 'exp' und Ersetzungsparameter bei 'rep' verwenden"},
    {0, "catalogue.swap_on", "Swaps text between the selected char (Default = '-')",
     "Tauscht den Text um das gewählte Zeichen (Standard = '-')"},
    {0, "catalogue.separator_token", "Use separator from numbering",
     "Trennzeichen der Nummerierung verwenden"},
    {0, "catalogue.decrypt", "Decrypts a filename", "Entschlüsselt einen Dateinamen"},
    {0, "catalogue.encrypt", "Encrypts a filename", "Verschlüsselt einen Dateinamen"},
    {0, "catalogue.count_dynamic", "Numbering with leading digits by amount of files",
     "Nummerierung mit führenden Ziffern nach Anzahl der Dateien"},
    {0, "catalogue.swap_casing", "Swaps upper- and lowercasing",
     "Tauscht Groß- und Kleinschreibung"},
    {0, "catalogue.drive_serial", "Serialnumber of current drive",
     "Seriennummer des aktuellen Laufwerks"},
    {0, "catalogue.parent_folder_n", "Use the (n-1) upper folder names.",
     "Verwendet die (n-1) übergeordneten Ordnernamen."},
};

}  // namespace

std::span<const MessageEntry> Placeholders() { return kEntries; }

}  // namespace tarnwick::message_data
