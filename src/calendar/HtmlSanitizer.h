#pragma once

#include <QString>

/// HTML of strangers made fit to be shown: a few tags that shape text, links to http, https and mailto, and
/// nothing that runs, loads, or reaches beyond its place. Reads any text, in time linear in its length.
namespace HtmlSanitizer {

QString sanitized(const QString &html);

} // namespace HtmlSanitizer
