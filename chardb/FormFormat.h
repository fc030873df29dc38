#pragma once

#include "ByteReader.h"
#include "Element.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Kind byte of a form record.
enum class FormKind : std::uint8_t {
    Composed = 0, ///< up to four placed forms of other elements
    Strokes = 1, ///< a list of strokes
};

/// One of the four placements of a composed form.
struct Placement {
    std::uint16_t elementId = 0; ///< 0 marks an unused placement
    std::uint8_t formNumber = 0; ///< counted from 1
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::uint16_t width = 0;
    std::uint16_t height = 0;
};

/// Size in bytes of a composed form record.
inline constexpr std::size_t ComposedFormSize = 51;

/// Gives the placed element of a composition by id (the reader passes its own loader). The
/// element stays valid until the load that asked for it ends.
using ElementLoader = std::function<const Element&(std::uint16_t)>;

/// What one element load may build. Composed forms multiply the strokes of the forms they place,
/// so a file of a few kilobytes could otherwise ask for gigabytes. The limits are far above any
/// real glyph (the largest kanji has a few dozen strokes of a few segments each).
struct LoadBudget {
    /// Strokes in one composed form.
    static constexpr std::size_t MaxFormStrokes = 65535;
    /// Segments in one composed form.
    static constexpr std::size_t MaxFormSegments = 1048576;
    /// Strokes and segments built by one element load, its forms and every part it composes
    /// together, more than a thousand times the largest real glyph: at about 30 bytes each, a
    /// load never holds more than about 4 MB, whatever the file says.
    static constexpr std::size_t MaxLoadItems = 131072;

    /// Counts `count` more strokes or segments against the load; throws "Unable to load element"
    /// when that passes the limit, before anything is built for them.
    void Spend(std::size_t count);

    /// Strokes and segments built so far by this load.
    std::size_t spent = 0;
};

/// Parses an element record (u8 form count, then the forms) into `element`. Composed forms get
/// their placed elements from `load`. Throws DatabaseLoadException "Unable to load element"
/// when the record ends early or the load would pass `budget`, and std::out_of_range for a
/// placement whose form number is not a form of the placed element.
void ParseElementRecord(ByteReader& reader, Element& element, const ElementLoader& load, LoadBudget& budget);

/// Checks an element record whose forms are all strokes (or of unknown kind) without building
/// it: the same reads, overruns and budget as ParseElementRecord, which would succeed exactly
/// when this does. Returns the strokes and segments the element holds, or nothing when a form is
/// composed (only a full load can check that).
std::optional<std::size_t> CheckPlainElementRecord(ByteReader& reader, LoadBudget& budget);

/// Appends to `target` the strokes of `source` scaled into the placement's box.
void ComposePlacement(Form& target, const Form& source, const Placement& placement);

/// Encodes a kind-1 form (strokes) as it is stored in an element record.
void EncodeStrokeForm(const Form& form, std::vector<std::uint8_t>& out);

/// Encodes a kind-0 form (composition) of the given box and placements.
void EncodeComposedForm(
    std::uint16_t width, std::uint16_t height, const Placement (&placements)[4], std::vector<std::uint8_t>& out);
