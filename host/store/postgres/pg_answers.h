// Questions to a server that are sent together.
#ifndef ZN_HOST_PG_ANSWERS_H
#define ZN_HOST_PG_ANSWERS_H

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

/// A statement with its values.
struct PgQuestion {
    std::string sql;
    std::vector<std::optional<std::string>> values;
    std::string asks; ///< how it is asked before all values are known; "": as it is

    friend bool operator==(const PgQuestion& a, const PgQuestion& b) {
        return a.sql == b.sql && a.values == b.values;
    }
};

/// Questions that are going to be asked, and the answers that came to them together: each is given once.
template <class Answer>
class PgAnswers {
public:
    /// Whether questions are noted at present, rather than asked.
    bool IsNoting() const { return noting_; }
    void SetNoting(bool noting) { noting_ = noting; }
    void Note(PgQuestion question) {
        if (std::find(questions_.begin(), questions_.end(), question) == questions_.end())
            questions_.push_back(std::move(question));
    }
    const std::vector<PgQuestion>& Questions() const { return questions_; }
    /// A value has become known.
    void Replace(const std::string& value, const std::string& known) {
        for (PgQuestion& question : questions_)
            std::replace(question.values.begin(), question.values.end(), std::optional(value),
                         std::optional(known));
    }
    /// The answers, in the order of the questions.
    void Keep(std::vector<Answer>&& answers) { answers_ = std::move(answers); }
    /// Nothing when it was not answered.
    Answer Take(const PgQuestion& question) {
        const auto found = std::find(questions_.begin(), questions_.end(), question);
        const auto place = static_cast<std::size_t>(found - questions_.begin());
        return place < answers_.size() ? std::exchange(answers_[place], Answer()) : Answer();
    }
    void Forget() {
        questions_.clear();
        answers_.clear();
    }

private:
    bool noting_ = false;
    std::vector<PgQuestion> questions_;
    std::vector<Answer> answers_;
};

} // namespace znhost

#endif
