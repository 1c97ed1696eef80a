#include "caldav/PushVerdict.h"

#include <algorithm>
#include <array>

namespace {

constexpr int MultiStatus = 207;
constexpr int NoContent = 204;
constexpr std::array MissingStatus{ 404, 410 };

}

PushVerdict::Verdict PushVerdict::ofPut(const CalDavClient::Response &response)
{
    if (!response.isSuccess() || response.status == MultiStatus)
        return Refused;
    return response.body.isEmpty() && !response.header("ETag").isEmpty() ? Accepted : Doubtful;
}

PushVerdict::Verdict PushVerdict::ofDelete(const CalDavClient::Response &response, bool wasListed)
{
    const bool isMissing = std::ranges::find(MissingStatus, response.status) != MissingStatus.end();
    if (response.status == NoContent || (isMissing && !wasListed))
        return Accepted;
    return isMissing || response.isSuccess() ? Doubtful : Refused;
}
