#pragma once

namespace Korvane {

class Twips;

/// A column of a page: labels on the left, entries right of them. Pixels.
struct PageColumn {
    int labelX = 0;
    int labelWidth = 0;
    int entryX = 0;
    int entryWidth = 0;
    int wideWidth = 0; ///< of an entry that takes all the width there is

    friend bool operator==(const PageColumn&, const PageColumn&) = default;
};

/// How wide the captions of a column are.
struct CaptionWidths {
    int widest = 0; ///< of a whole caption on one line
    int word = 0;   ///< of a single word
};

/// The columns of a page: comment fields stand in the second one, beside their base fields.
struct PageColumns {
    PageColumn first;
    PageColumn second;        ///< the same as `first` where there is no room for two
    bool sideBySide = false;  ///< whether there are two
    bool labelsAbove = false; ///< whether a label stands above its entry, on a very narrow page
};

/// Divides a page of a width. Labels get what the widest caption needs, up to a part of their column (longer
/// ones wrap), but never less than a word needs as long as entries keep room. Entries stop growing where a
/// line would be too long to read.
PageColumns dividePage(int width, const CaptionWidths& first, const CaptionWidths& second, bool hasSecond,
                       const Twips& twips);

} // namespace Korvane
