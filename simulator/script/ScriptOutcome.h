#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// What a script has come to, read from what its PipeReport has written so far.
struct ScriptOutcome {
    struct Failure {
        int line = 0;
        std::string reason;
    };
    struct Note {
        int line = 0;
        std::string text;
    };

    int lastLine = 0; ///< of the last step that began; 0 before the first
    bool passed = false;
    std::optional<Failure> failure;
    std::vector<Note> notes; ///< in the order in which they came

    bool isDecided() const { return passed || failure; }
};

ScriptOutcome readOutcome(std::string_view report);

} // namespace simulator
