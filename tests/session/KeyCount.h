#pragma once

#include <array>
#include <stdexcept>
#include <string>

namespace plandesk::session {

/// Counts the keys that a user presses beside the texts that are typed, and refuses more than an answer or the turn of
/// a page may take.
class KeyCount {
public:
    enum class Part { Way, Answer, PageTurn };

    /// From here on keys belong to that answer, page or way to another form; naming the present one goes on with it.
    /// Throws when the part that ends took too many.
    void begin(Part next, const std::string& what) {
        if (next == part && what == name)
            return;
        end();
        part = next;
        name = what;
        ++counts.at(place());
    }
    void pressed() { ++keys; }
    /// Ends the last part and tells all numbers.
    std::string summary() {
        end();
        return told(Part::Answer) + " answers took " + pressedIn(Part::Answer) + " keys beside typed text, at most " +
               std::to_string(most) + " each; " + told(Part::PageTurn) + " page turns took " +
               pressedIn(Part::PageTurn) + "; " + told(Part::Way) + " ways to other forms, saves and boxes took " +
               pressedIn(Part::Way);
    }

private:
    std::size_t place() const { return static_cast<std::size_t>(part); }
    std::string told(Part kind) const { return std::to_string(counts.at(static_cast<std::size_t>(kind))); }
    std::string pressedIn(Part kind) const { return std::to_string(sums.at(static_cast<std::size_t>(kind))); }
    void end() {
        constexpr int mostForAnAnswer = 2;
        const bool tooMany = (part == Part::Answer && keys > mostForAnAnswer) || (part == Part::PageTurn && keys > 1);
        if (tooMany)
            throw std::runtime_error(name + " took " + std::to_string(keys) + " keys");
        if (part == Part::Answer)
            most = keys > most ? keys : most;
        sums.at(place()) += keys;
        keys = 0;
    }

    Part part = Part::Way;
    std::string name;
    int keys = 0;
    int most = 0;
    std::array<int, 3> counts{};
    std::array<int, 3> sums{};
};

}  // namespace plandesk::session
