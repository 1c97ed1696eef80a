#include "caldav/PushVerdict.h"

namespace {

constexpr int Created = 201;
constexpr int NoContent = 204;
constexpr int MultiStatus = 207;

}

PushVerdict::Verdict PushVerdict::ofPut(const CalDavClient::Response &response)
{
    if (!response.isSuccess() || response.status == MultiStatus)
        return Refused;
    // Nobody but the server says 201 or 204. Some give no etag: they may have changed the text.
    const bool isPlain = response.status == Created || response.status == NoContent;
    return response.body.isEmpty() && (isPlain || !response.header("ETag").isEmpty()) ? Accepted : Doubtful;
}

PushVerdict::Verdict PushVerdict::ofDelete(const CalDavClient::Response &response, bool wasListed)
{
    if (response.status == NoContent || (response.isMissing() && !wasListed))
        return Accepted;
    return response.isMissing() || response.isSuccess() ? Doubtful : Refused;
}
