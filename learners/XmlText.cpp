#include "XmlText.h"

namespace {

/// A buffer that pugixml writes the document into.
class StringWriter : public pugi::xml_writer {
public:
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
    std::string text;
};

class DepthCheck : public pugi::xml_tree_walker {
public:
    explicit DepthCheck(int limit) : m_limit(limit) { }
    bool for_each(pugi::xml_node&) override
    {
        tooDeep = depth() >= m_limit;
        return !tooDeep;
    }
    bool tooDeep = false;

private:
    int m_limit;
};

} // namespace

std::string DocumentText(const pugi::xml_document& document, std::size_t expected)
{
    StringWriter writer;
    writer.text.reserve(expected);
    document.save(writer, "  ", pugi::format_default, pugi::encoding_utf8);
    return std::move(writer.text);
}

bool NestedAtLeast(const pugi::xml_document& document, int depth)
{
    DepthCheck check(depth);
    const_cast<pugi::xml_document&>(document).traverse(check);
    return check.tooDeep;
}
