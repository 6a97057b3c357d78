// libpq, taken into use when the first server is asked for.
#ifndef ZN_HOST_LIBPQ_H
#define ZN_HOST_LIBPQ_H

#include <libpq-fe.h>
#include <string>

namespace znhost {

/// The functions of libpq. With all that it needs itself, linking to it would double the time in which a
/// program starts that only reads files; and where it is not installed only servers cannot be reached.
struct LibPq {
// clang-format off
#define ZN_LIBPQ_FUNCTIONS(use) \
    use(PQbackendPID) use(PQcancel) use(PQclear) use(PQcmdStatus) use(PQcmdTuples) use(PQconnectPoll) \
    use(PQconnectStartParams) use(PQconninfo) use(PQconninfoFree) use(PQconninfoParse) \
    use(PQconsumeInput) use(PQenterPipelineMode) use(PQerrorMessage) use(PQexitPipelineMode) use(PQfinish) use(PQflush) use(PQfreeCancel) use(PQfreemem) \
    use(PQftype) use(PQgetCancel) use(PQgetResult) use(PQgetisnull) use(PQgetlength) use(PQgetvalue) \
    use(PQisBusy) use(PQnfields) use(PQnotifies) use(PQntuples) use(PQpipelineStatus) use(PQpipelineSync) use(PQputCopyEnd) use(PQresultErrorField) \
    use(PQresultErrorMessage) use(PQresultStatus) use(PQsendPrepare) use(PQsendQuery) \
    use(PQsendQueryParams) use(PQsendQueryPrepared) use(PQserverVersion) use(PQsetNoticeReceiver) \
    use(PQsetSingleRowMode) use(PQsetnonblocking) use(PQsocket) use(PQstatus) \
    use(PQtransactionStatus)
// clang-format on
#define ZN_DECLARE(name) decltype(&::name) name = nullptr;
    ZN_LIBPQ_FUNCTIONS(ZN_DECLARE)
#undef ZN_DECLARE

    /// Loads it, unless that is done.
    /// @return false with the reason
    static bool Load(std::string& reason);
};

/// Its functions; they may be called when `Load` has succeeded.
const LibPq& Pq();

} // namespace znhost

#endif
