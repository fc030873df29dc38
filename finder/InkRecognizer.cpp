#include "InkRecognizer.h"

#include "CharacterDatabase.h"
#include "Flattening.h"
#include "Lexicon.h"
#include "Utf8.h"

#include <zinnia.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace {

/// Points each stroke is compared by.
constexpr std::uint32_t PointsPerStroke = 16;
/// Strokes of a character beyond those written (the learner is not done yet) cost this much
/// each; strokes written beyond a character's own, more.
constexpr double MissingStroke = 0.06;
constexpr double ExtraStroke = 0.2;
/// The weight of the place on the canvas beside the shape in the learner's own frame.
constexpr double CanvasPlace = 0.3;
/// What the model's confidence is worth: its first candidate gains this much, its later ones less.
constexpr double ModelBonus = 0.02;
constexpr std::size_t ModelCandidates = 100;

std::vector<Point> Resampled(const std::vector<Point>& points)
{
    StrokePath path(points.size() >= 2 ? points : std::vector<Point>{points.front(), points.front()});
    path.ResampleInPlace(PointsPerStroke);
    return path.Points();
}

struct Frame {
    float cx = 0, cy = 0, scale = 1;
};

/// The frame of the first `strokes` strokes of resampled points: their bounding box's centre
/// and its longer side (never below a tenth of the canvas, for a lone dot).
Frame FrameOf(const std::vector<Point>& points, std::size_t strokes)
{
    float left = std::numeric_limits<float>::max(), top = left, right = -left, bottom = -left;
    for (std::size_t i = 0; i < strokes * PointsPerStroke && i < points.size(); ++i) {
        left = std::min(left, points[i].x);
        right = std::max(right, points[i].x);
        top = std::min(top, points[i].y);
        bottom = std::max(bottom, points[i].y);
    }
    return {(left + right) / 2, (top + bottom) / 2, std::max({right - left, bottom - top, InkRecognizer::Side / 10})};
}

/// The model knows some characters only in their common simplified form, where the database
/// also (or only) teaches the traditional one (as the 2010 Jōyō list and the names' list do):
/// the model's answer stands for that one too.
char32_t TraditionalForm(char32_t modelForm)
{
    switch (modelForm) {
    case U'叱': return U'𠮟';
    case U'剥': return U'剝';
    case U'填': return U'塡';
    case U'頬': return U'頰';
    case U'掴': return U'摑';
    case U'蒋': return U'蔣';
    case U'黄': return U'黃';
    case U'黒': return U'黑';
    default: return 0;
    }
}

} // namespace

struct HandwritingModel::Zinnia {
    zinnia_recognizer_t* recognizer = zinnia_recognizer_new();
    zinnia_character_t* character = zinnia_character_new();
    ~Zinnia()
    {
        zinnia_character_destroy(character);
        zinnia_recognizer_destroy(recognizer);
    }
};

HandwritingModel::HandwritingModel() : m_zinnia(std::make_unique<Zinnia>()) { }
HandwritingModel::~HandwritingModel() = default;

std::unique_ptr<HandwritingModel> HandwritingModel::Load(const std::string& path, std::string& error)
{
    std::unique_ptr<HandwritingModel> model(new HandwritingModel);
    if (zinnia_recognizer_open(model->m_zinnia->recognizer, path.c_str()) == 0) {
        const char* why = zinnia_recognizer_strerror(model->m_zinnia->recognizer);
        error = why && *why ? why : "the model cannot be read";
        return nullptr;
    }
    return model;
}

InkRecognizer::InkRecognizer(CharacterDatabase& database, const Lexicon& lexicon)
    : m_lexicon(lexicon)
{
    m_byId.assign(database.CharacterCount(), static_cast<std::size_t>(-1));
    for (std::uint16_t id = 0; id < database.CharacterCount(); ++id) {
        if (!database.CharacterExists(id))
            continue;
        const auto element = database.LoadElement(database.LoadCharacter(id)->ElementId());
        if (!element || element->FormCount() == 0)
            continue;
        const Form& form = element->GetForm(0);
        Template t;
        t.id = id;
        t.strokes = form.StrokeCount();
        for (std::uint16_t k = 0; k < form.StrokeCount(); ++k) {
            std::vector<Point> points = FlattenStroke(form.GetStroke(k));
            for (Point& p : points) {
                p.x *= Side / form.Width();
                p.y *= Side / form.Height();
            }
            for (const Point& p : Resampled(points))
                t.points.push_back(p);
        }
        if (t.strokes == 0)
            continue;
        if (m_byStrokes.size() <= t.strokes)
            m_byStrokes.resize(t.strokes + 1u);
        m_byStrokes[t.strokes].push_back(m_templates.size());
        m_byId[id] = m_templates.size();
        m_templates.push_back(std::move(t));
    }
}

InkRecognizer::~InkRecognizer() = default;

bool InkRecognizer::LoadModel(const std::string& path, std::string& error)
{
    m_model = HandwritingModel::Load(path, error);
    return m_model != nullptr;
}

double InkRecognizer::Distance(const Template& t, const std::vector<std::vector<Point>>& ink) const
{
    const std::size_t shared = std::min<std::size_t>(t.strokes, ink.size());
    std::vector<Point> written;
    for (std::size_t k = 0; k < shared; ++k)
        written.insert(written.end(), ink[k].begin(), ink[k].end());
    const Frame a = FrameOf(written, shared), b = FrameOf(t.points, shared);
    double own = 0, canvas = 0;
    for (std::size_t i = 0; i < shared * PointsPerStroke; ++i) {
        const Point& p = written[i];
        const Point& q = t.points[i];
        own += std::hypot((p.x - a.cx) / a.scale - (q.x - b.cx) / b.scale, (p.y - a.cy) / a.scale - (q.y - b.cy) / b.scale);
        canvas += std::hypot(p.x - q.x, p.y - q.y) / Side;
    }
    const double n = static_cast<double>(shared * PointsPerStroke);
    double d = own / n + CanvasPlace * canvas / n;
    if (t.strokes > ink.size())
        d += MissingStroke * static_cast<double>(t.strokes - ink.size());
    else
        d += ExtraStroke * static_cast<double>(ink.size() - t.strokes);
    return d;
}

std::vector<InkRecognizer::Candidate> InkRecognizer::Recognize(const std::vector<StrokePath>& strokes, std::size_t count) const
{
    std::vector<std::vector<Point>> ink;
    for (const StrokePath& s : strokes)
        if (!s.Points().empty())
            ink.push_back(Resampled(s.Points()));
    if (ink.empty())
        return {};
    // The model's candidates, best first.
    std::unordered_map<std::uint16_t, std::size_t> modelRank;
    if (m_model) {
        zinnia_character_t* c = m_model->m_zinnia->character;
        zinnia_character_clear(c);
        zinnia_character_set_width(c, static_cast<std::size_t>(Side));
        zinnia_character_set_height(c, static_cast<std::size_t>(Side));
        for (std::size_t k = 0; k < strokes.size(); ++k)
            for (const Point& p : strokes[k].Points())
                zinnia_character_add(c, k, static_cast<int>(std::lround(std::clamp(p.x, 0.0f, Side))),
                    static_cast<int>(std::lround(std::clamp(p.y, 0.0f, Side))));
        if (zinnia_result_t* result = zinnia_recognizer_classify(m_model->m_zinnia->recognizer, c, ModelCandidates)) {
            for (std::size_t i = 0; i < zinnia_result_size(result); ++i) {
                const std::vector<char32_t> value = CodePointsOf(zinnia_result_value(result, i));
                if (value.size() != 1)
                    continue;
                const std::size_t rank = i;
                for (char32_t form : {value[0], TraditionalForm(value[0])}) {
                    const std::uint16_t id = form ? m_lexicon.CharacterOf(form) : Lexicon::NoCharacter;
                    if (id != Lexicon::NoCharacter)
                        modelRank.emplace(id, rank);
                }
            }
            zinnia_result_destroy(result);
        }
    }
    // Every character of about as many strokes, and every one the model proposes.
    std::vector<Candidate> ranked;
    std::vector<bool> seen(m_templates.size(), false);
    auto consider = [&](std::size_t index) {
        if (seen[index])
            return;
        seen[index] = true;
        const Template& t = m_templates[index];
        double d = Distance(t, ink);
        if (const auto found = modelRank.find(t.id); found != modelRank.end())
            d -= ModelBonus * (1.0 - static_cast<double>(found->second) / ModelCandidates);
        ranked.push_back({t.id, d});
    };
    const std::size_t n = ink.size();
    for (std::size_t s = n > 2 ? n - 2 : 1; s <= n + 3 && s < m_byStrokes.size(); ++s)
        for (std::size_t index : m_byStrokes[s])
            consider(index);
    for (const auto& [id, rank] : modelRank)
        if (id < m_byId.size() && m_byId[id] != static_cast<std::size_t>(-1))
            consider(m_byId[id]);
    const std::size_t keep = std::min(count, ranked.size());
    std::partial_sort(ranked.begin(), ranked.begin() + static_cast<std::ptrdiff_t>(keep), ranked.end(),
        [](const Candidate& a, const Candidate& b) { return a.score < b.score || (a.score == b.score && a.id < b.id); });
    ranked.resize(keep);
    return ranked;
}
