#include "caldav/PushVerdict.h"

namespace {

constexpr int MultiStatus = 207;
constexpr int NoContent = 204;

}

PushVerdict::Verdict PushVerdict::ofPut(const CalDavClient::Response &response)
{
    if (!response.isSuccess() || response.status == MultiStatus)
        return Refused;
    return response.body.isEmpty() && !response.header("ETag").isEmpty() ? Accepted : Doubtful;
}

PushVerdict::Verdict PushVerdict::ofDelete(const CalDavClient::Response &response, bool wasListed)
{
    if (response.status == NoContent || (response.isMissing() && !wasListed))
        return Accepted;
    return response.isMissing() || response.isSuccess() ? Doubtful : Refused;
}
