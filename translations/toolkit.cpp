// The toolkit's own texts that people see in our windows: standard buttons, the file dialog, context menus. Nothing
// compiles this file; lupdate reads it, so that the translations hold these texts and the checks miss none of them.
// The file dialog's texts are those for opening one file; a text that several of the toolkit's classes use, or that
// the program has too, stands in one place, since the lookup knows no contexts.

#include <QtGlobal>

namespace {

[[maybe_unused]] constexpr const char* texts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),

    // instead of the first two on Gnome
    QT_TRANSLATE_NOOP("QGnomeTheme", "&OK"),
    QT_TRANSLATE_NOOP("QGnomeTheme", "&Cancel"),

    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "Copy &Link Location"),

    // beside the entries of these menus
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),

    QT_TRANSLATE_NOOP("QScrollBar", "Scroll here"),
    QT_TRANSLATE_NOOP("QScrollBar", "Top"),
    QT_TRANSLATE_NOOP("QScrollBar", "Bottom"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page down"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll down"),
    QT_TRANSLATE_NOOP("QScrollBar", "Left edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Right edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page right"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll right"),

    QT_TRANSLATE_NOOP("QFileDialog", "Look in:"),
    QT_TRANSLATE_NOOP("QFileDialog", "File &name:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Files of type:"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Open"),
    QT_TRANSLATE_NOOP("QFileDialog", "Recent Places"),

    // tool buttons: tool tips, and descriptions for screen readers
    QT_TRANSLATE_NOOP("QFileDialog", "Back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go to the parent directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create a New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "List View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to list view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "Detail View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to detail view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "Sidebar"),
    QT_TRANSLATE_NOOP("QFileDialog", "List of places and bookmarks"),
    QT_TRANSLATE_NOOP("QFileDialog", "Files"),

    QT_TRANSLATE_NOOP("QFileDialog", "&Rename"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Delete"),
    QT_TRANSLATE_NOOP("QFileDialog", "Show &hidden files"),
    QT_TRANSLATE_NOOP("QFileDialog", "&New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Remove"), // from the sidebar
    QT_TRANSLATE_NOOP("QFileDialog", "Show "), // and the name of a column

    QT_TRANSLATE_NOOP("QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given."),
    QT_TRANSLATE_NOOP("QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given."),
    QT_TRANSLATE_NOOP("QFileDialog", "Are you sure you want to delete '%1'?"),
    QT_TRANSLATE_NOOP("QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?"),
    QT_TRANSLATE_NOOP("QFileDialog", "Could not delete directory."),

    QT_TRANSLATE_NOOP("QFileSystemModel", "Name"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Size"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Type"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Computer"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Invalid filename"),
    // The one with markup, which no label shows as such: the translations, the English one too, have none.
    QT_TRANSLATE_NOOP("QFileSystemModel",
                      "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer "
                      "characters or no punctuation marks."),

    // what the column Type says
    QT_TRANSLATE_NOOP("QFileDialog", "Drive"),
    QT_TRANSLATE_NOOP("QFileDialog", "Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "File"),
    QT_TRANSLATE_NOOP("QFileDialog", "%1 File"),
    QT_TRANSLATE_NOOP("QFileDialog", "Shortcut"),
    QT_TRANSLATE_NOOP("QFileDialog", "Unknown"),
};

} // namespace
