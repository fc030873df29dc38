#pragma once

#include "ByteReader.h"
#include "Element.h"

#include <cstdint>
#include <functional>
#include <memory>
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

/// Loads a placed element by id (the reader passes its own LoadElement).
using ElementLoader = std::function<std::unique_ptr<Element>(std::uint16_t)>;

/// Parses an element record (u8 form count, then the forms) into `element`. Composed forms load
/// their placed elements through `load`. Throws DatabaseLoadException "Unable to load element"
/// when the record ends early or a composed form would exceed 65535 strokes, and
/// std::out_of_range for a placement whose form number is not a form of the placed element.
void ParseElementRecord(ByteReader& reader, Element& element, const ElementLoader& load);

/// Appends to `target` the strokes of `source` scaled into the placement's box.
void ComposePlacement(Form& target, const Form& source, const Placement& placement);

/// Encodes a kind-1 form (strokes) as it is stored in an element record.
void EncodeStrokeForm(const Form& form, std::vector<std::uint8_t>& out);

/// Encodes a kind-0 form (composition) of the given box and placements.
void EncodeComposedForm(
    std::uint16_t width, std::uint16_t height, const Placement (&placements)[4], std::vector<std::uint8_t>& out);
