#include "shell/message_data.h"

// Texts of the EXIF reader, the tag editor, the media viewers and the
// metadata reports. Labels that stand before a value keep their blanks.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Answers of the MPEG tokens and of the tag editor's labels.
    {1012, "media.yes", "Yes", "Ja"},
    {1013, "media.no", "No", "Nein"},

    // EXIF reader.
    {555, "exif.show_metainfo", "Show JPEG EXIF Metainfo", "JPEG-EXIF-Metainformationen anzeigen"},
    {557, "exif.not_found", "not found.", "nicht gefunden."},
    {558, "exif.no_metainformation", "File has no EXIF Metainformation.",
     "Die Datei enthält keine EXIF-Metainformationen."},
    {559, "exif.error_parsing", "Error parsing the file.", "Fehler beim Auslesen der Datei."},
    {560, "exif.file_not_found", "File not found.", "Datei nicht gefunden."},
    {0, "exif.tag_before_number", "Tag ", "Tag "},
    {0, "exif.unknown_tag_name", "Tag #", "Tag #"},

    // Tag editor: technical facts, each label followed by its value.
    {0, "tag_editor.length", "Length: ", "Länge: "},
    {0, "tag_editor.bitrate", "Bitrate: ", "Bitrate: "},
    {0, "tag_editor.kbit_per_sec", " kbit / sec, ", " kbit / s, "},
    {0, "tag_editor.constant_bit_rate", "constant bit rate", "konstante Bitrate"},
    {0, "tag_editor.variable_bit_rate", "variable bit rate", "variable Bitrate"},
    {0, "tag_editor.frequency", "Frequency: ", "Frequenz: "},
    {0, "tag_editor.hz", " hz, ", " Hz, "},
    {0, "tag_editor.copyrighted", "Copyrighted: ", "Urheberrechtlich geschützt: "},
    {0, "tag_editor.original", "Original: ", "Original: "},
    {0, "tag_editor.uses_checksums", "Uses checksums: ", "Verwendet Prüfsummen: "},
    {0, "tag_editor.uses_emphasis", "Uses emphasis: ", "Verwendet Emphasis: "},
    {0, "tag_editor.id3v1_tag", "ID3 v1 tag: ", "ID3-v1-Tag: "},
    {0, "tag_editor.id3v2_tag", "ID3 v2 tag: ", "ID3-v2-Tag: "},
    {0, "tag_editor.version_1", "version 1.", "Version 1."},
    {0, "tag_editor.version_2", "version 2.", "Version 2."},
    {0, "tag_editor.none", "none", "keiner"},
    {1102, "tag_editor.illegal_chars_v1", "Illegal chars in ID v1 Tags",
     "Unzulässige Zeichen in den ID-v1-Tags"},
    {1103, "tag_editor.illegal_chars_v2", "Illegal chars in ID v2 Tags",
     "Unzulässige Zeichen in den ID-v2-Tags"},

    // Viewers.
    {0, "viewer.exif_title", "JPEG - EXIF Metatag Reader (", "JPEG - EXIF-Metatag-Leser ("},
    {0, "viewer.mp3_v2_information", "MP3 ID TAG v2 information:", "MP3-ID-Tag-v2-Informationen:"},
    {0, "viewer.wma_information", "WMA TAG information:", "WMA-Tag-Informationen:"},
    {0, "viewer.label_album", "Album: ", "Album: "},
    {0, "viewer.label_artist", "Artist: ", "Interpret: "},
    {0, "viewer.label_artist_additional", "Artist Additional: ", "Weitere Interpreten: "},

    // Reports.
    {0, "report.menu_exif", "Create JPEG EXIF Metainfo file",
     "JPEG-EXIF-Metainformationsdatei erstellen"},
    {0, "report.menu_mp3", "Create MP3 info file", "MP3-Informationsdatei erstellen"},
    {0, "report.filter_textfile", "Textfile", "Textdatei"},
    {221, "report.column_filename", "Filename", "Dateiname"},
    {226, "report.column_size", "Size", "Größe"},
    {250, "report.column_path", "Path", "Pfad"},
    {852, "report.column_picture_size", "Picture siz in pixel", "Bildgröße in Pixel"},
    {850, "report.mp3_tags_to_file", "MP3 ID Tags to file", "MP3-ID-Tags in Datei"},
    {847, "report.exif_to_file", "JPEG EXIF Metainfo to file",
     "JPEG-EXIF-Metainformationen in Datei"},
    {851, "report.no_mp3_information", "No MP3 information found in file",
     "Keine MP3-Informationen in der Datei gefunden"},
};

}  // namespace

std::span<const MessageEntry> Media() { return kEntries; }

}  // namespace tarnwick::message_data
