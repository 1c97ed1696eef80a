#pragma once

/// The machine's own time zone, as the C library and through it Qt see it.
namespace LocalTime {

/// Call once before the first conversion to local time. With TZ unset, glibc asks the file system on each
/// conversion whether /etc/localtime has changed, which makes a reload of thousands of events several
/// times slower. This names the file in TZ, so that it is read once. A TZ that is set already stays.
void settle();

/// Call now and then: takes up a change of /etc/localtime, such as a traveller makes.
void follow();

} // namespace LocalTime
