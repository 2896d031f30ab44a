#include "review/FindQuestion.h"

#include <algorithm>

#include "base/Text.h"
#include "review/Questions.h"

namespace plandesk {

namespace {

/// Without what stands between the parts of a number: "11 b." is "11b".
std::string plain(std::string_view item) {
    std::string text = lowerCase(item);
    std::erase_if(text, [](char character) { return character == ' ' || character == '.'; });
    return text;
}

}  // namespace

std::vector<FoundQuestion> findQuestions(const Proposal& proposal, std::string_view wanted) {
    std::vector<std::string> words = split(lowerCase(trim(wanted)), " ");
    std::erase(words, "");
    std::vector<FoundQuestion> found;
    if (words.empty())
        return found;
    for (const auto& [name, form] : proposal.forms.all()) {
        std::string number;  // the one before a letter that stands on a row of its own
        for (const Question& question : questionsOf(*form)) {
            const std::string item = plain(question.row->item);
            const std::size_t letters = std::min(item.find_first_not_of("0123456789"), item.size());
            if (letters > 0)
                number = item.substr(0, letters);
            const std::string text = wordsOf(question);
            const std::string answer = answerOf(question);
            std::string all = lowerCase(text);
            all.append(" ").append(lowerCase(answer));
            const bool byNumber = !item.empty() && plain(wanted) == (letters > 0 ? item : number + item);
            const bool byWords = std::ranges::all_of(
                words, [&](const std::string& word) { return all.find(word) != std::string::npos; });
            if (byNumber || byWords)
                found.push_back({form->name(), question.control().key(), text, answer});
        }
    }
    return found;
}

}  // namespace plandesk
