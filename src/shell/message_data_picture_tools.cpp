#include "shell/message_data.h"

// Texts of the picture tools: the JPEG encoder's errors, the compress and
// resize jobs with their dialogues, and the words of the platform encoders.
namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    // Descriptions of the encoder's run-time errors (number 1).
    {0, "jpeg.invalid_sampling_value", "Invalid Sampling Value", "Ungültiger Abtastwert"},
    {0, "jpeg.illegal_comment_length", "Illegal Comment Length", "Unzulässige Kommentarlänge"},
    {0, "jpeg.bad_quantization_table", "Bad Quantization Table",
     "Fehlerhafte Quantisierungstabelle"},
    {0, "jpeg.bad_huffman_table", "Bad Huffman Table", "Fehlerhafte Huffman-Tabelle"},
    {0, "jpeg.illegal_precision", "Illegal precission in Quantization Table",
     "Unzulässige Genauigkeit in der Quantisierungstabelle"},

    // Compressing to JPEG: the job.
    {647, "picture.compress_title", "Compress picture files to JPEG",
     "Bilddateien nach JPEG komprimieren"},
    {654, "picture.copy_name_part", "(Copy", "(Kopie"},
    {655, "picture.files_not_processed",
     "files couldn't be processed in case of invalid file format.",
     "Dateien konnten wegen eines ungültigen Dateiformats nicht bearbeitet werden."},
    {670, "picture.overwrite_question",
     "If you continue you will overwrite all exisiting files, are you sure you want to do that?",
     "Wenn Sie fortfahren, werden alle vorhandenen Dateien überschrieben. Wollen Sie das "
     "wirklich?"},
    {671, "picture.overwrite_title", "Overwrite files", "Dateien überschreiben"},

    // Compressing to JPEG: the dialogue. Captions without a quoted wording
    // (quality, sampling, greyscale, comment, the two frames) are ours.
    {0, "picture.quality", "Quality:", "Qualität:"},
    {0, "picture.subsampling", "Subsampling:", "Unterabtastung:"},
    {0, "picture.subsample_max_quality", " [Max Quality]", " [Max. Qualität]"},
    {0, "picture.subsample_default", " [Default]", " [Standard]"},
    {0, "picture.greyscale", "Greyscale", "Graustufen"},
    {0, "picture.overwrite_originals", "Overwrite/delete original files",
     "Originaldateien überschreiben/löschen"},
    {0, "picture.different_destination", "Different destination directory",
     "Anderes Zielverzeichnis"},
    {0, "picture.please_select_folder", "Please select folder", "Bitte Ordner auswählen"},
    {0, "picture.comment", "Comment:", "Kommentar:"},
    {0, "picture.rotate_frame", "Rotate", "Drehen"},
    {0, "picture.rotate_nothing", "Nothing", "Nichts"},
    {0, "picture.rotate_clockwise", "90° clockwise", "90° im Uhrzeigersinn"},
    {0, "picture.rotate_counterclockwise", "90° counterclockwise", "90° gegen den Uhrzeigersinn"},
    {0, "picture.rotate_180", "180°", "180°"},
    {0, "picture.mirror_frame", "Mirror", "Spiegeln"},
    {0, "picture.mirror_nothing", "Nothing", "Nichts"},
    {0, "picture.mirror_horizontal", "Horizontal", "Horizontal"},
    {0, "picture.mirror_vertical", "Vertical", "Vertikal"},
    {0, "picture.keep_exif", "Keep the EXIF data (dates, camera, place)",
     "EXIF-Daten behalten (Datum, Kamera, Ort)"},
    {0, "picture.preview", "Preview", "Vorschau"},
    {0, "picture.no_preview", "No preview", "Keine Vorschau"},
    {0, "picture.destination_missing", "The destination folder does not exist:",
     "Das Zielverzeichnis existiert nicht:"},

    // Resizing: the job and its dialogue. Captions without a quoted wording
    // (width, height, the format frame, compression) are ours.
    {975, "picture.resize_title", "Resize picture (only BMP, GIF, JPG & WMF)",
     "Bildgröße ändern (nur BMP, GIF, JPG & WMF)"},
    {980, "picture.only_bmp_possible", "(only as BMP possible)", "(nur als BMP möglich)"},
    {1069, "picture.tiff_compression_none", "None", "Keine"},
    {0, "picture.mode_percentage", "Percentage", "Prozentual"},
    {0, "picture.mode_size_in_pixel", "Size in pixel", "Größe in Pixel"},
    {0, "picture.scale_down", "Scale down", "Verkleinern"},
    {0, "picture.scale_up", "Scale up", "Vergrößern"},
    {0, "picture.percent_of_original", "% of the size of the original picture",
     "% der Größe des Originalbildes"},
    {0, "picture.width", "Width:", "Breite:"},
    {0, "picture.height", "Height:", "Höhe:"},
    {0, "picture.no_value_no_change", "Note: No value means no change",
     "Hinweis: Kein Wert bedeutet keine Änderung"},
    {0, "picture.smooth_blur", "Smooth picture (blur)", "Bild glätten (weichzeichnen)"},
    {0, "picture.save_format_frame", "Save format", "Speicherformat"},
    {0, "picture.tiff_compression", "Compression:", "Komprimierung:"},
    {0, "picture.mode_frame", "Mode", "Modus"},
    {0, "picture.direction_frame", "Direction", "Richtung"},

    // The platform encoders. The missing-encoder text stays German in both
    // languages.
    {0, "picture.encoder_error_title", "Encoder Error", "Encoder-Fehler"},
    {0, "picture.encoder_not_found", "Konnte keinen passenden Encoder ermitteln.",
     "Konnte keinen passenden Encoder ermitteln."},
    {0, "gdiplus.error_title", "GDI+ Error", "GDI+-Fehler"},
    {0, "gdiplus.error_text", " GDI+ Error:", " GDI+-Fehler:"},
    {0, "gdiplus.status.generic_error", "Generic Error.", "Allgemeiner Fehler."},
    {0, "gdiplus.status.invalid_parameter", "Invalid Parameter.", "Ungültiger Parameter."},
    {0, "gdiplus.status.out_of_memory", "Out Of Memory.", "Nicht genügend Speicher."},
    {0, "gdiplus.status.object_busy", "Object Busy.", "Objekt ist belegt."},
    {0, "gdiplus.status.insufficient_buffer", "Insufficient Buffer.", "Puffer zu klein."},
    {0, "gdiplus.status.not_implemented", "Not Implemented.", "Nicht implementiert."},
    {0, "gdiplus.status.win32_error", "Win32 Error.", "Win32-Fehler."},
    {0, "gdiplus.status.wrong_state", "Wrong State.", "Falscher Zustand."},
    {0, "gdiplus.status.aborted", "Aborted.", "Abgebrochen."},
    {0, "gdiplus.status.file_not_found", "File Not Found.", "Datei nicht gefunden."},
    {0, "gdiplus.status.value_overflow", "Value Overflow.", "Wertüberlauf."},
    {0, "gdiplus.status.access_denied", "Access Denied.", "Zugriff verweigert."},
    {0, "gdiplus.status.unknown_image_format", "Unknown Image Format.", "Unbekanntes Bildformat."},
    {0, "gdiplus.status.font_family_not_found", "FontFamily Not Found.",
     "Schriftfamilie nicht gefunden."},
    {0, "gdiplus.status.font_style_not_found", "FontStyle Not Found.",
     "Schriftschnitt nicht gefunden."},
    {0, "gdiplus.status.not_truetype_font", "Not TrueType Font.", "Keine TrueType-Schrift."},
    {0, "gdiplus.status.unsupported_version", "Unsupported Gdiplus Version.",
     "Nicht unterstützte GDI+-Version."},
    {0, "gdiplus.status.not_initialized", "Gdiplus Not Initialized.", "GDI+ nicht initialisiert."},
    {0, "gdiplus.status.property_not_found", "Property Not Found.", "Eigenschaft nicht gefunden."},
    {0, "gdiplus.status.property_not_supported", "Property Not Supported.",
     "Eigenschaft nicht unterstützt."},
    {0, "gdiplus.status.unknown", "Unknown GDI+ Error.", "Unbekannter GDI+-Fehler."},
};

}  // namespace

std::span<const MessageEntry> PictureTools() { return kEntries; }

}  // namespace tarnwick::message_data
