#include "CopySimulation.h"

#include "Flattening.h"
#include "WritingQuiz.h"

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
/// about 3 px apart, placed, moved by the stroke's own offset, wavering.
StrokePath Draw(const Form& form, std::uint16_t k, const Placement& place, float extraX, float extraY,
    const Hand& hand, std::mt19937& random)
{
    std::normal_distribution<float> normal(0.0f, 1.0f);
    std::uniform_real_distribution<float> phase(0.0f, float(2 * Pi));
    StrokePath path(FlattenStroke(form.GetStroke(k)));
    path.ScaleAndOffset(Side / form.Width(), Side / form.Height(), 0, 0);
    const float length = path.Length();
    path.ResampleInPlace(std::max<std::uint32_t>(2, static_cast<std::uint32_t>(std::lround(length / 3.0f)) + 1));
    const float dx = hand.strokeOffset * normal(random) + extraX;
    const float dy = hand.strokeOffset * normal(random) + extraY;
    const float phaseX = phase(random), phaseY = phase(random);
    std::vector<Point> points;
    const auto& source = path.Points();
    for (std::size_t i = 0; i < source.size(); ++i) {
        const float along = 3.0f * static_cast<float>(i); // about 3 px a point
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

Figures Run(CharacterDatabase& database, const std::vector<std::uint16_t>& categories, const Hand& hand,
    Mistake mistake, bool ownFrame, const std::vector<std::uint32_t>& seeds)
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
                bool clean = true;
                bool caught = false, refused = false;
                for (std::uint16_t k = 0; k < form.StrokeCount(); ++k) {
                    ++figures.strokes;
                    for (int attempt = 0; attempt < Tries; ++attempt) {
                        // A stroke moved on purpose is moved at its first try only.
                        const bool movedNow = k == moved && attempt == 0;
                        const StrokePath ink
                            = Draw(form, k, place, movedNow ? moveX : 0, movedNow ? moveY : 0, hand, random);
                        const StrokeVerdict verdict = quiz.Judge(ink);
                        if (verdict.kind == StrokeVerdict::Kind::Accepted) {
                            if (attempt == 0)
                                ++figures.firstTry;
                            quiz.StrokeKept(ink);
                            break;
                        }
                        quiz.StrokeRefused();
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
