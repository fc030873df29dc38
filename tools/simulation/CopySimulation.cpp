#include "CopySimulation.h"

#include "Flattening.h"
#include "InkSteadier.h"
#include "WritingQuiz.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <sstream>

namespace copysimulation {

namespace {

constexpr float Side = 298;
constexpr int Tries = 5;
constexpr double Pi = 3.14159265358979323846;

/// How the whole character is placed: learner = anchor + scale * (model - anchor) + offset.
struct Placement {
    float anchorX = Side / 2, anchorY = Side / 2;
    float scale = 1;
    float offsetX = 0, offsetY = 0;
};

/// Stroke `k` of the glyph as the hand draws it this time: flattened onto the canvas, points
/// the hand's spacing apart, placed, moved by the stroke's own offset, wavering, jittering.
StrokePath Draw(const Form& form, std::uint16_t k, const Placement& place, float extraX, float extraY, const Hand& hand,
    std::mt19937& random)
{
    std::normal_distribution<float> normal(0.0f, 1.0f);
    std::uniform_real_distribution<float> phase(0.0f, float(2 * Pi));
    StrokePath path(FlattenStroke(form.GetStroke(k)));
    path.ScaleAndOffset(Side / form.Width(), Side / form.Height(), 0, 0);
    const float length = path.Length();
    const float spacing = hand.pointSpacing;
    path.ResampleInPlace(std::max<std::uint32_t>(2, static_cast<std::uint32_t>(std::lround(length / spacing)) + 1));
    const float dx = hand.strokeOffset * normal(random) + extraX;
    const float dy = hand.strokeOffset * normal(random) + extraY;
    const float phaseX = phase(random), phaseY = phase(random);
    std::vector<Point> points;
    const auto& source = path.Points();
    for (std::size_t i = 0; i < source.size(); ++i) {
        const float along = spacing * static_cast<float>(i);
        const float waverX = hand.wobble * std::sin(along / 40.0f * float(2 * Pi) / 2 + phaseX);
        const float waverY = hand.wobble * std::sin(along / 40.0f * float(2 * Pi) / 2 + phaseY);
        Point p = source[i];
        p.x = place.anchorX + place.scale * (p.x - place.anchorX) + place.offsetX + dx + waverX
            + hand.pointNoise * normal(random);
        p.y = place.anchorY + place.scale * (p.y - place.anchorY) + place.offsetY + dy + waverY
            + hand.pointNoise * normal(random);
        points.push_back(p);
    }
    return StrokePath(std::move(points));
}

} // namespace

std::vector<StrokePath> FreehandCopy(const Form& form, const Hand& hand, std::mt19937& random)
{
    std::normal_distribution<float> normal(0.0f, 1.0f);
    Placement place;
    place.scale = 1 + hand.characterScale * normal(random);
    place.offsetX = hand.characterOffset * normal(random);
    place.offsetY = hand.characterOffset * normal(random);
    std::vector<StrokePath> strokes;
    for (std::uint16_t k = 0; k < form.StrokeCount(); ++k)
        strokes.push_back(Draw(form, k, place, 0, 0, hand, random));
    return strokes;
}

Figures Run(CharacterDatabase& database, const std::vector<std::uint16_t>& categories, const Hand& hand,
    Mistake mistake, bool ownFrame, const std::vector<std::uint32_t>& seeds, float steadyWidth)
{
    // Deliberately not std::normal_distribution's own numbers alone: every figure comes from
    // std::mt19937 seeded with the seeds given, so the same seeds give the same figures.
    Figures figures;
    const CanvasRect canvas{0, 0, static_cast<std::uint16_t>(Side), static_cast<std::uint16_t>(Side)};
    for (std::uint32_t seed : seeds) {
        std::mt19937 random(seed);
        std::normal_distribution<float> normal(0.0f, 1.0f);
        std::uniform_real_distribution<float> angle(0.0f, float(2 * Pi));
        for (std::uint16_t categoryId : categories) {
            const auto category = database.LoadCategory(categoryId);
            for (std::uint16_t id : category->Characters()) {
                auto element = database.LoadElement(database.LoadCharacter(id)->ElementId());
                const Form form = element->GetForm(0);
                WritingQuiz quiz;
                quiz.SetOwnFrame(ownFrame);
                quiz.Start(std::move(element), canvas);
                Placement place;
                place.scale = 1 + hand.characterScale * normal(random);
                place.offsetX = hand.characterOffset * normal(random);
                place.offsetY = hand.characterOffset * normal(random);
                int moved = -1;
                float moveX = 0, moveY = 0;
                const float a = angle(random);
                switch (mistake) {
                case Mistake::None: break;
                case Mistake::OneStrokeMoved: {
                    moved = std::uniform_int_distribution<int>(0, form.StrokeCount() - 1)(random);
                    // Any direction that keeps the stroke on the canvas: a pen cannot write
                    // past the paper's edge (and ink there is measured by the edge, not where
                    // the hand was).
                    StrokePath stroke(FlattenStroke(form.GetStroke(static_cast<std::uint16_t>(moved))));
                    stroke.ScaleAndOffset(Side / form.Width(), Side / form.Height(), 0, 0);
                    const CanvasRect box = stroke.Bounds();
                    float tryAngle = a;
                    for (int guard = 0; guard < 50; ++guard) {
                        moveX = 0.15f * Side * std::cos(tryAngle);
                        moveY = 0.15f * Side * std::sin(tryAngle);
                        if (box.x + moveX >= 0 && box.x + box.width + moveX <= Side && box.y + moveY >= 0
                            && box.y + box.height + moveY <= Side)
                            break;
                        tryAngle = angle(random);
                    }
                    break;
                }
                case Mistake::OneStrokeReversed:
                    moved = std::uniform_int_distribution<int>(0, form.StrokeCount() - 1)(random);
                    break;
                case Mistake::CharacterMoved:
                    place.offsetX += 0.30f * Side * std::cos(a);
                    place.offsetY += 0.30f * Side * std::sin(a);
                    break;
                case Mistake::HalfSizeInACorner: {
                    const int corner = std::uniform_int_distribution<int>(0, 3)(random);
                    place.anchorX = (corner & 1) ? Side : 0;
                    place.anchorY = (corner & 2) ? Side : 0;
                    place.scale *= 0.5f;
                    break;
                }
                }
                ++figures.characters;
                bool clean = true, whole = true;
                bool caught = false, refused = false;
                for (std::uint16_t k = 0; k < form.StrokeCount(); ++k) {
                    ++figures.strokes;
                    for (int attempt = 0; attempt < Tries; ++attempt) {
                        // A stroke moved on purpose is moved at its first try only.
                        const bool movedNow = k == moved && attempt == 0;
                        StrokePath drawn
                            = Draw(form, k, place, movedNow ? moveX : 0, movedNow ? moveY : 0, hand, random);
                        if (movedNow && mistake == Mistake::OneStrokeReversed) {
                            std::vector<Point> back(drawn.Points().rbegin(), drawn.Points().rend());
                            drawn = StrokePath(std::move(back));
                        }
                        const StrokePath ink = steadyWidth > 0 ? InkSteadier::Steady(drawn, steadyWidth) : drawn;
                        const StrokeVerdict verdict = quiz.Judge(ink);
                        if (verdict.kind == StrokeVerdict::Kind::Accepted) {
                            if (attempt == 0)
                                ++figures.firstTry;
                            quiz.StrokeKept(ink);
                            break;
                        }
                        quiz.StrokeRefused();
                        whole = false;
                        const bool place = verdict.kind == StrokeVerdict::Kind::WrongPlace;
                        if (place) {
                            ++figures.placeRefusals;
                            clean = false;
                        } else if (verdict.kind == StrokeVerdict::Kind::WrongShape) {
                            ++figures.shapeRefusals;
                        } else {
                            ++figures.otherRefusals;
                        }
                        if (movedNow) {
                            caught = caught || place;
                            refused = true;
                        }
                        if (attempt == 0 && k < 2
                            && (mistake == Mistake::CharacterMoved || mistake == Mistake::HalfSizeInACorner)) {
                            caught = caught || place;
                            refused = true;
                        }
                    }
                    if (quiz.Kept() <= k)
                        break; // the learner gives the character up
                }
                figures.cleanCharacters += clean ? 1 : 0;
                figures.wholeCharacters += whole ? 1 : 0;
                if (mistake != Mistake::None) {
                    ++figures.mistakes;
                    figures.mistakesCaught += caught ? 1 : 0;
                    figures.mistakesRefused += refused ? 1 : 0;
                }
            }
        }
    }
    return figures;
}

std::string Describe(const Figures& f, Mistake mistake)
{
    std::ostringstream out;
    out.setf(std::ios::fixed);
    out.precision(1);
    out << f.characters << " characters, " << f.strokes << " strokes: " << 100 * f.FirstTryShare()
        << " % accepted at the first try, " << 100 * f.CleanShare() << " % of characters without a refusal for place"
        << " (refusals: " << f.placeRefusals << " place, " << f.shapeRefusals << " shape, " << f.otherRefusals
        << " other)";
    if (mistake != Mistake::None)
        out << "; the mistake refused for place in " << 100 * f.CaughtShare() << " % of " << f.mistakes
            << " cases, refused at all in " << 100 * f.RefusedShare() << " %";
    return out.str();
}

} // namespace copysimulation

namespace copysimulation {
namespace {

/// Stroke `k` of `form` written exactly along its path on the canvas, points every 2 px.
StrokePath Exact(const Form& form, std::uint16_t k)
{
    StrokePath path(FlattenStroke(form.GetStroke(k)));
    path.ScaleAndOffset(Side / form.Width(), Side / form.Height(), 0, 0);
    path.ResampleInPlace(std::max<std::uint32_t>(2, static_cast<std::uint32_t>(std::lround(path.Length() / 2)) + 1));
    return path;
}

/// Whether two strokes are drawn alike (start and end within 4 % of the box).
bool SameStroke(const Form& a, std::uint16_t i, const Form& b, std::uint16_t j)
{
    const StrokePath p = Exact(a, i), q = Exact(b, j);
    auto near = [](Point x, Point y) { return std::hypot(x.x - y.x, x.y - y.y) < 0.04f * Side; };
    return near(p.Points().front(), q.Points().front()) && near(p.Points().back(), q.Points().back());
}

/// Writes `strokes` (exact ink of some form's strokes, in the order given) one after another;
/// the verdict kinds until the first refusal (or all).
std::vector<StrokeVerdict::Kind> Write(
    std::unique_ptr<Element> glyph, const std::vector<StrokePath>& strokes, bool orders)
{
    WritingQuiz quiz;
    quiz.SetOwnFrame(true);
    quiz.SetOtherOrders(orders);
    quiz.Start(std::move(glyph), CanvasRect{0, 0, static_cast<std::uint16_t>(Side), static_cast<std::uint16_t>(Side)});
    std::vector<StrokeVerdict::Kind> kinds;
    for (const StrokePath& ink : strokes) {
        const StrokeVerdict verdict = quiz.Judge(ink);
        kinds.push_back(verdict.kind);
        if (verdict.kind != StrokeVerdict::Kind::Accepted)
            break;
        quiz.StrokeKept(ink);
    }
    return kinds;
}

} // namespace

OrderFigures RunOrders(
    CharacterDatabase& database, const std::vector<std::uint16_t>& categories, int swaps, std::uint32_t seed)
{
    OrderFigures figures;
    std::mt19937 random(seed);
    struct Candidate {
        std::uint16_t id;
        std::uint16_t k;
    };
    std::vector<Candidate> candidates;
    for (std::uint16_t categoryId : categories) {
        const auto category = database.LoadCategory(categoryId);
        for (std::uint16_t id : category->Characters()) {
            const std::uint16_t elementId = database.LoadCharacter(id)->ElementId();
            const auto element = database.LoadElement(elementId);
            const Form& standard = element->GetForm(0);
            std::vector<StrokePath> strokes;
            for (std::uint16_t k = 0; k < standard.StrokeCount(); ++k)
                strokes.push_back(Exact(standard, k));
            const auto on = Write(database.LoadElement(elementId), strokes, true);
            const auto off = Write(database.LoadElement(elementId), strokes, false);
            figures.standardStrokes += static_cast<int>(strokes.size());
            for (std::size_t k = 0; k < strokes.size(); ++k)
                figures.standardSameVerdicts
                    += k < on.size() && k < off.size() ? on[k] == off[k] : on.size() <= k && off.size() <= k;
            for (std::uint8_t f = 1; f < element->FormCount(); ++f) {
                const Form& other = element->GetForm(f);
                std::vector<StrokePath> own;
                for (std::uint16_t k = 0; k < other.StrokeCount(); ++k)
                    own.push_back(Exact(other, k));
                ++figures.variants;
                figures.variantStrokes += static_cast<int>(own.size());
                const auto kinds = Write(database.LoadElement(elementId), own, true);
                figures.variantStrokesAccepted
                    += static_cast<int>(std::count(kinds.begin(), kinds.end(), StrokeVerdict::Kind::Accepted));
                const auto without = Write(database.LoadElement(elementId), own, false);
                figures.variantsWholeWithout += without.size() == own.size()
                    && std::count(without.begin(), without.end(), StrokeVerdict::Kind::Accepted)
                        == static_cast<long>(own.size());
            }
            // Swaps of strokes k and k + 1 that no other order begins with: an order whose first k
            // strokes are the standard ones and whose next is stroke k + 1 is one the learner may
            // be writing.
            for (std::uint16_t k = 0; k + 1 < standard.StrokeCount(); ++k) {
                bool recorded = false;
                for (std::uint8_t f = 1; f < element->FormCount() && !recorded; ++f) {
                    const Form& other = element->GetForm(f);
                    recorded = SameStroke(other, k, standard, k + 1);
                    for (std::uint16_t j = 0; j < k && recorded; ++j)
                        recorded = SameStroke(other, j, standard, j);
                }
                if (!recorded)
                    candidates.push_back({id, k});
            }
        }
    }
    std::shuffle(candidates.begin(), candidates.end(), random);
    candidates.resize(std::min(candidates.size(), static_cast<std::size_t>(swaps)));
    for (const Candidate& c : candidates) {
        const std::uint16_t elementId = database.LoadCharacter(c.id)->ElementId();
        const Form standard = database.LoadElement(elementId)->GetForm(0);
        std::vector<StrokePath> strokes;
        for (std::uint16_t k = 0; k <= c.k + 1; ++k)
            strokes.push_back(Exact(standard, k));
        std::swap(strokes[c.k], strokes[c.k + 1]);
        ++figures.swaps;
        const auto on = Write(database.LoadElement(elementId), strokes, true);
        const auto off = Write(database.LoadElement(elementId), strokes, false);
        figures.swapsRefusedOn += on.size() > c.k && on[c.k] != StrokeVerdict::Kind::Accepted;
        figures.swapsRefusedOff += off.size() > c.k && off[c.k] != StrokeVerdict::Kind::Accepted;
    }
    return figures;
}

} // namespace copysimulation
