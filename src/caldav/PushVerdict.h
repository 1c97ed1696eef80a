#pragma once

#include "caldav/CalDavClient.h"

/// What an answer to a PUT or a DELETE is worth. A sign-in page of a network, or a proxy, may say 200 to anything:
/// believing it would lose what the user wrote.
namespace PushVerdict {

enum Verdict {
    Accepted,
    Refused,
    Doubtful, ///< look whether the resource is as it should be
};

/// Certain without a page beside it, when the status or an etag tells of a resource. 207 tells of single failures,
/// RFC 4918 §9.6.1.
Verdict ofPut(const CalDavClient::Response &response);
/// A resource that is not there is deleted; \p wasListed: it was there a moment ago.
Verdict ofDelete(const CalDavClient::Response &response, bool wasListed);

} // namespace PushVerdict
