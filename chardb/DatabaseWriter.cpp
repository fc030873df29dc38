#include "DatabaseWriter.h"

#include "ByteWriter.h"
#include "FormFormat.h"

#include <stdexcept>

namespace {

std::uint16_t NextId(const std::vector<std::vector<std::uint8_t>>& records)
{
    if (records.size() >= 0xFFFF)
        throw std::length_error("too many records for a 16-bit id");
    return static_cast<std::uint16_t>(records.size());
}

void CheckText(const std::string& text)
{
    if (text.size() > 255)
        throw std::length_error("text longer than 255 bytes");
}

} // namespace

std::uint16_t DatabaseWriter::AddStrokeElement(const Form& form)
{
    std::vector<std::uint8_t> record{1};
    EncodeStrokeForm(form, record);
    return AddRawElement(std::move(record));
}

std::uint16_t DatabaseWriter::AddStrokeElement(const std::vector<Form>& forms)
{
    if (forms.empty() || forms.size() > 255)
        throw std::length_error("an element holds 1 to 255 forms");
    std::vector<std::uint8_t> record{static_cast<std::uint8_t>(forms.size())};
    for (const Form& form : forms)
        EncodeStrokeForm(form, record);
    return AddRawElement(std::move(record));
}

std::uint16_t DatabaseWriter::AddRawElement(std::vector<std::uint8_t> record)
{
    const std::uint16_t id = NextId(m_elements);
    m_elements.push_back(std::move(record));
    return id;
}

std::uint16_t DatabaseWriter::AddCharacter(
    std::uint16_t elementId, const std::string& on, const std::string& kun, const std::string& meaning)
{
    CheckText(on);
    CheckText(kun);
    CheckText(meaning);
    const std::uint16_t id = NextId(m_characters);
    std::vector<std::uint8_t> record;
    ByteWriter w(record);
    w.U16(elementId);
    w.ShortString(on);
    w.ShortString(kun);
    w.ShortString(meaning);
    m_characters.push_back(std::move(record));
    return id;
}

std::uint16_t DatabaseWriter::AddCategory(const std::string& name, const std::vector<std::uint16_t>& members)
{
    CheckText(name);
    if (members.size() > 0xFFFF)
        throw std::length_error("category too large");
    const std::uint16_t id = NextId(m_categories);
    std::vector<std::uint8_t> record;
    ByteWriter w(record);
    w.ShortString(name);
    w.U16(static_cast<std::uint16_t>(members.size()));
    for (std::uint16_t code : members)
        w.U16(code);
    m_categories.push_back(std::move(record));
    return id;
}

std::uint16_t DatabaseWriter::AddMissingCharacter()
{
    m_characters.emplace_back();
    return static_cast<std::uint16_t>(m_characters.size() - 1);
}

std::vector<std::uint8_t> DatabaseWriter::Serialize() const
{
    const std::vector<std::vector<std::uint8_t>>* kinds[] = {&m_elements, &m_characters, &m_categories};
    std::size_t offset = 12;
    std::uint32_t dictionaryOffsets[3];
    for (int k = 0; k < 3; ++k) {
        dictionaryOffsets[k] = static_cast<std::uint32_t>(offset);
        offset += 2 + 6 * kinds[k]->size();
    }
    std::vector<std::uint8_t> out;
    ByteWriter w(out);
    for (std::uint32_t o : dictionaryOffsets)
        w.U32(o);
    std::size_t recordOffset = offset;
    for (const auto* records : kinds) {
        w.U16(static_cast<std::uint16_t>(records->size()));
        for (const auto& record : *records) {
            if (record.size() > 0xFFFF || recordOffset > 0xFFFFFFFEu)
                throw std::length_error("record too large for the database format");
            if (record.empty()) {
                // A hole: an id kept with no record (no record is ever empty).
                w.U32(0xFFFFFFFFu);
                w.U16(0);
                continue;
            }
            w.U32(static_cast<std::uint32_t>(recordOffset));
            w.U16(static_cast<std::uint16_t>(record.size()));
            recordOffset += record.size();
        }
    }
    for (const auto* records : kinds)
        for (const auto& record : *records)
            out.insert(out.end(), record.begin(), record.end());
    return out;
}
