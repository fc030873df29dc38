#include "UserRecordXml.h"

#include "TextRules.h"

namespace {

/// A number of an event's, as the program writes them.
bool IsPlainNumber(const char* text)
{
    unsigned value = 0;
    return ParsePlainNumber(text, value);
}

void ReadIds(const pugi::xml_node& list, void (CategoryProgress::*add)(std::uint16_t), CategoryProgress& record)
{
    for (pugi::xml_node character : list.children("Character"))
        if (const pugi::xml_attribute id = character.attribute("id"))
            (record.*add)(ParseId(id.value()));
}

} // namespace

std::vector<LearnerEvent> ReadHistory(const pugi::xml_node& history)
{
    std::vector<LearnerEvent> events;
    // What an event leaves out it shares with the last event kept.
    const LearnerEvent* previous = nullptr;
    for (pugi::xml_node node : history.children("Event")) {
        const pugi::xml_attribute at = node.attribute("at");
        const pugi::xml_attribute kind = node.attribute("kind");
        const pugi::xml_attribute category = node.attribute("categoryId");
        const pugi::xml_attribute id = node.attribute("id");
        if (!previous && (!at || !kind || !category))
            continue;
        LearnerEvent event;
        event.at = at ? at.value() : previous->at;
        event.kind = kind ? kind.value() : previous->kind;
        if (!IsEventTime(event.at) || event.kind.empty() || !IsPlainNumber(id.value()))
            continue;
        if (category && !IsPlainNumber(category.value()))
            continue;
        event.categoryId = category ? static_cast<std::uint16_t>(category.as_uint()) : previous->categoryId;
        event.id = static_cast<std::uint16_t>(id.as_uint());
        if (const pugi::xml_attribute mistakes = node.attribute("mistakes")) {
            if (!IsPlainNumber(mistakes.value()))
                continue;
            event.mistakes = mistakes.as_int();
        }
        events.push_back(std::move(event));
        previous = &events.back();
    }
    return events;
}

namespace {

void WriteHistory(pugi::xml_node node, const std::vector<LearnerEvent>& events)
{
    if (events.empty())
        return; // a learner without history keeps the file as it always was
    pugi::xml_node history = node.append_child("History");
    const LearnerEvent* previous = nullptr;
    for (const LearnerEvent& event : events) {
        pugi::xml_node e = history.append_child("Event");
        if (!previous || previous->at != event.at)
            e.append_attribute("at") = event.at.c_str();
        if (!previous || previous->kind != event.kind)
            e.append_attribute("kind") = event.kind.c_str();
        if (!previous || previous->categoryId != event.categoryId)
            e.append_attribute("categoryId") = static_cast<unsigned>(event.categoryId);
        e.append_attribute("id") = static_cast<unsigned>(event.id);
        if (event.mistakes >= 0)
            e.append_attribute("mistakes") = event.mistakes;
        previous = &event;
    }
}

} // namespace

void ReadUserRecord(const pugi::xml_node& node, User& user)
{
    for (pugi::xml_node progress : node.children("Progress")) {
        CategoryProgress record;
        record.SetCategoryId(ParseId(progress.attribute("categoryId").value()));
        ReadIds(progress.child("Learned"), &CategoryProgress::AddLearned, record);
        ReadIds(progress.child("Untested"), &CategoryProgress::AddUntested, record);
        user.AddProgress(record);
    }
    for (LearnerEvent& event : ReadHistory(node.child("History")))
        user.AddEvent(std::move(event));
}

void WriteUserRecord(
    pugi::xml_node node, User& user, std::uint16_t categories, const std::vector<LearnerEvent>& history)
{
    for (std::uint16_t i = 0; i < categories; ++i) {
        const CategoryProgress& record = user.GetProgress(i);
        pugi::xml_node progress = node.append_child("Progress");
        progress.append_attribute("categoryId") = static_cast<unsigned>(i);
        pugi::xml_node learned = progress.append_child("Learned");
        for (std::uint16_t id : record.Learned())
            learned.append_child("Character").append_attribute("id") = static_cast<unsigned>(id);
        pugi::xml_node untested = progress.append_child("Untested");
        for (std::uint16_t id : record.Untested())
            untested.append_child("Character").append_attribute("id") = static_cast<unsigned>(id);
    }
    WriteHistory(node, history);
}
