#pragma once

#include "Form.h"

#include <cstdint>
#include <utility>
#include <vector>

/// A reusable glyph drawing: one or more forms. Copies are deep.
class Element {
public:
    Element() = default;
    /// An element with no forms yet.
    explicit Element(std::uint16_t id) : m_id(id) { }

    /// The element's id in the database.
    std::uint16_t Id() const { return m_id; }
    /// Number of forms.
    std::uint8_t FormCount() const { return static_cast<std::uint8_t>(m_forms.size()); }
    /// Form by zero-based index; throws std::out_of_range for a bad index.
    const Form& GetForm(std::uint8_t index) const { return m_forms.at(index); }
    /// Appends a form.
    void AppendForm(const Form& form) { m_forms.push_back(form); }
    /// Appends a form, taking over its strokes.
    void AppendForm(Form&& form) { m_forms.push_back(std::move(form)); }

private:
    std::uint16_t m_id = 0;
    std::vector<Form> m_forms;
};
