#pragma once

#include "Element.h"
#include "SheetLayout.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

class CharacterDatabase;
class Lexicon;
class QImage;
class QPainter;

/// A character as a practice sheet shows it: its glyph (drawn from its strokes), readings,
/// meaning and up to two common words.
struct SheetCharacter {
    std::uint16_t id = 0;
    std::shared_ptr<Element> glyph;
    QString on;
    QString kun;
    QString meaning;
    QStringList words; ///< "学校 がっこう school"
};

/// A practice sheet of some characters under some choices: its pages laid out, each drawn as
/// vector paths (sharp at any resolution) onto any painter: a PDF, a printer, an image. The
/// paper is always white and the ink dark, whatever the desktop's palette.
class PracticeSheet {
public:
    /// Reads the characters of `ids` from the database (and their words from `lexicon`, which
    /// may be null). An id the database does not have is refused: `error` names it and the
    /// result is empty. Throws DatabaseLoadException when the database cannot be read.
    static std::vector<SheetCharacter> Load(CharacterDatabase& database, const Lexicon* lexicon,
        const std::vector<std::uint16_t>& ids, QString& error);

    PracticeSheet(std::vector<SheetCharacter> characters, SheetOptions options);

    const SheetOptions& Options() const { return m_options; }
    const std::vector<SheetCharacter>& Characters() const { return m_characters; }
    const std::vector<SheetPage>& Pages() const { return m_pages; }

    /// Draws page `index` with the painter's origin at the paper's top-left corner and
    /// `dotsPerMillimetre` device dots to a millimetre.
    void PaintPage(QPainter& painter, std::size_t index, double dotsPerMillimetre) const;
    /// The page as an image `width` pixels wide (at `ratio` device pixels to a pixel).
    QImage PageImage(std::size_t index, int width, qreal ratio = 1) const;
    /// Writes every page as a PDF at `path` (replacing it only once the whole file is written).
    /// False with `error` set when it cannot be written; nothing is then left at `path`.
    bool WritePdf(const QString& path, QString& error) const;

private:
    std::vector<SheetCharacter> m_characters;
    SheetOptions m_options;
    std::vector<SheetPage> m_pages;
};
