// Of a connection to a server: questions that are asked together, and what it tells unasked.
#include "base/text.h"
#include "store/postgres/libpq.h"
#include "store/postgres/pg_connection.h"
#include "store/postgres/pg_sql.h"

#include <algorithm>

namespace znhost {

// ---- Asking together

namespace {

bool IsSetting(const std::optional<std::string>& value) { return value && value->substr(0, 1) == "\1"; }

/// The statement that takes values from settings instead; "" when none stands there.
std::string WithSettings(const PgSql& sql, const PgConnection::Parameters& values) {
    if (std::none_of(values.begin(), values.end(), IsSetting)) return {};
    std::string text = sql.text;
    for (std::size_t i = values.size(); i-- > 0;) {
        if (!IsSetting(values[i])) continue;
        text.replace(sql.places[i], 1 + std::to_string(i + 1).size(),
                     "nullif(current_setting('" + values[i]->substr(1) + "', true), '')");
    }
    return text;
}

/// Of values that are not used nobody else could tell.
std::vector<Oid> TypesOf(const PgQuestion& question) {
    constexpr Oid text = 25;
    std::vector<Oid> types;
    for (const auto& value : question.values) types.push_back(IsSetting(value) ? text : Oid{0});
    return types;
}

} // namespace

bool PgConnection::Notes(const PgSql& sql, const Parameters& parameters) {
    if (along_.IsNoting()) along_.Note({sql.text, parameters, WithSettings(sql, parameters)});
    return along_.IsNoting();
}

void PgConnection::SetNoting(bool noting) {
    if (noting) ForgetAnswers();
    along_.SetNoting(noting);
}

PgConnection::Answer PgConnection::TakeAnswer(const std::string& sql, const Parameters& parameters) {
    return along_.Take({sql, parameters, {}});
}

// When it fails the questions are asked one by one, and tell why.
void PgConnection::AskNoted() {
    const std::vector<PgQuestion> questions = along_.Questions();
    if (questions.size() < 2) return ForgetAnswers();
    std::vector<Answer> answers;
    std::string reason;
    if (!AskTogether(questions, answers, reason)) {
        if (IsLoss(reason)) untold_ = reason;
        return;
    }
    for (const PgQuestion& question : questions) along_.Note(question);
    along_.Keep(std::move(answers));
}

bool PgConnection::AskTogether(const std::vector<PgQuestion>& questions, std::vector<Answer>& answers,
                               std::string& reason) {
    if (!Begin(nullptr, reason)) return false;
    bool failed = false;
    bool sent = Pq().PQenterPipelineMode(connection_.get()) != 0;
    for (const PgQuestion& question : questions) {
        const std::vector<const char*> values = Pointers(question.values);
        const std::vector<Oid> types = TypesOf(question);
        const std::string& sql = question.asks.empty() ? question.sql : question.asks;
        sent = sent && Pq().PQsendQueryParams(connection_.get(), sql.c_str(), static_cast<int>(values.size()),
                                              types.data(), values.data(), nullptr, nullptr, 0) != 0;
    }
    if (!Sent(sent && Pq().PQpipelineSync(connection_.get()) != 0, reason)) return false;
    answers.resize(questions.size());
    for (std::size_t i = 0;;) {
        if (!Await(reason)) return false;
        PgResult result(Pq().PQgetResult(connection_.get()));
        const ExecStatusType status = Pq().PQresultStatus(result.get());
        if (!result && Pq().PQstatus(connection_.get()) == CONNECTION_BAD) return Lose(reason);
        if (status == PGRES_PIPELINE_SYNC) break;
        if (!result) { // between two answers
            ++i;
        } else if (i >= answers.size() || (status != PGRES_TUPLES_OK && status != PGRES_SINGLE_TUPLE)) {
            failed = true;
        } else {
            answers[i].push_back(std::move(result));
        }
    }
    if (failed) answers.clear();
    Pq().PQexitPipelineMode(connection_.get());
    NoteStatus();
    return true;
}

// ---- Listening

int PgConnection::Channel() const {
    const bool isOpen = connection_ && Pq().PQstatus(connection_.get()) == CONNECTION_OK;
    return isOpen ? Pq().PQsocket(connection_.get()) : -1;
}

// That the connection is lost is told to who asks next.
bool PgConnection::TakeNotices() {
    if (Channel() < 0 || asked_ || !Pq().PQconsumeInput(connection_.get())) return false;
    bool told = false;
    while (PGnotify* const notice = Pq().PQnotifies(connection_.get())) {
        told = told || notice->be_pid != Pq().PQbackendPID(connection_.get());
        Pq().PQfreemem(notice);
    }
    return told;
}

} // namespace znhost
