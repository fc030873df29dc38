#pragma once

#include "StrokePath.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class CharacterDatabase;
class Lexicon;

/// Zinnia with a handwriting model, read from its file once (slow: it may be read on another
/// thread, then handed to the recognizer).
class HandwritingModel {
public:
    /// The model at `path`; null with `error` when it cannot be read.
    static std::unique_ptr<HandwritingModel> Load(const std::string& path, std::string& error);
    ~HandwritingModel();
    HandwritingModel(const HandwritingModel&) = delete;
    HandwritingModel& operator=(const HandwritingModel&) = delete;

private:
    HandwritingModel();
    friend class InkRecognizer;
    struct Zinnia;
    std::unique_ptr<Zinnia> m_zinnia;
};

/// Finds the characters of the database most like what the learner wrote on the 298 px
/// writing canvas. Zinnia, with Debian's Japanese model trained on real handwriting, proposes
/// candidates; they are ranked again with what only the database knows: each character's own
/// strokes, in its order, compared stroke by stroke with the learner's (place, shape and
/// direction, in the learner's own frame), and its stroke count. A character the model does not
/// know is found from the database alone. No Qt.
class InkRecognizer {
public:
    /// Where Debian installs the Japanese model.
    static constexpr const char* DefaultModel = "/usr/share/tegaki/models/zinnia/handwriting-ja.model";
    /// The canvas the ink is given in.
    static constexpr float Side = 298;

    /// Reads every glyph of `database` (its literals from `lexicon`) once.
    InkRecognizer(CharacterDatabase& database, const Lexicon& lexicon);
    ~InkRecognizer();
    InkRecognizer(const InkRecognizer&) = delete;
    InkRecognizer& operator=(const InkRecognizer&) = delete;

    /// Reads the model (slow: a fraction of a second); false with `error` when it cannot.
    /// Until it is read, or without it, the database alone ranks.
    bool LoadModel(const std::string& path, std::string& error);
    /// Takes a model read elsewhere (none: the database alone ranks).
    void SetModel(std::shared_ptr<HandwritingModel> model) { m_model = std::move(model); }
    bool HasModel() const { return m_model != nullptr; }

    struct Candidate {
        std::uint16_t id = 0;
        double score = 0; ///< lower is better
    };
    /// The `count` most likely characters, best first (none without ink).
    std::vector<Candidate> Recognize(const std::vector<StrokePath>& ink, std::size_t count = 10) const;

private:
    struct Template {
        std::uint16_t id = 0;
        std::uint16_t strokes = 0;
        std::vector<Point> points; ///< each stroke resampled, in canvas pixels
    };
    double Distance(const Template& t, const std::vector<std::vector<Point>>& ink) const;

    const Lexicon& m_lexicon;
    std::vector<Template> m_templates;
    std::vector<std::vector<std::size_t>> m_byStrokes; ///< template indexes by stroke count
    std::vector<std::size_t> m_byId; ///< template index of each id (or npos)
    std::shared_ptr<HandwritingModel> m_model;
};
