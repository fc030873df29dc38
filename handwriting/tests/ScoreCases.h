#pragma once

// The checker's inputs of the recorded score fixture: every stroke of Grade 1 and Grade 2 on a
// 298 px canvas as a mouse would deliver it, written exactly, moved, scaled about the canvas's
// centre, shrunk, reversed and trembling, each scored at its own index and at the next one. `visit` receives each
// case's name and the score the checker gives it, always in the same order.

#include "CharacterDatabase.h"
#include "LearnerInk.h"
#include "StrokeChecker.h"

#include <cmath>
#include <string>
#include <vector>

template <typename Visit>
void ForEachScoreCase(CharacterDatabase& db, Visit visit)
{
    constexpr float Side = 298;
    const CanvasRect canvas{0, 0, 298, 298};
    for (std::uint16_t categoryId : {std::uint16_t{0}, std::uint16_t{1}}) {
        const auto category = db.LoadCategory(categoryId);
        for (std::uint16_t id : category->Characters()) {
            const auto element = db.LoadElement(db.LoadCharacter(id)->ElementId());
            const Form& form = element->GetForm(0);
            const StrokeChecker checker(form, canvas);
            for (std::uint16_t k = 0; k < form.StrokeCount(); ++k) {
                const StrokePath exact = LearnerInk(form.GetStroke(k), form, Side);
                const StrokePath moved = LearnerInk(form.GetStroke(k), form, Side, 17.0f, -11.0f);
                StrokePath scaled = exact;
                // 1.3 times larger about the canvas's centre (149, 149).
                scaled.ScaleAndOffset(1.3f, 1.3f, 149.0f - 1.3f * 149.0f, 149.0f - 1.3f * 149.0f);
                StrokePath shrunk = exact;
                shrunk.ScaleAndOffset(0.55f, 0.8f, 40.0f, 20.0f);
                const StrokePath reversed = Reversed(exact);
                // A hand that trembles: each point pushed up to 4 px across, in a fixed pattern.
                std::vector<Point> trembling = exact.Points();
                for (std::size_t i = 0; i < trembling.size(); ++i) {
                    trembling[i].x += 4.0f * std::sin(0.9f * static_cast<float>(i));
                    trembling[i].y += 3.0f * std::cos(1.3f * static_cast<float>(i));
                }
                const StrokePath wobbled(std::move(trembling));
                const std::string at = std::to_string(id) + "/" + std::to_string(k);
                const std::pair<const char*, const StrokePath*> variants[] = {
                    {"exact", &exact}, {"moved", &moved}, {"scaled", &scaled}, {"shrunk", &shrunk},
                    {"reversed", &reversed}, {"wobbled", &wobbled}};
                for (const auto& [name, ink] : variants) {
                    visit(at + " " + name, checker.Score(*ink, k));
                    visit(at + " " + name + "+1", checker.Score(*ink, static_cast<std::uint16_t>(k + 1)));
                }
            }
        }
    }
}
