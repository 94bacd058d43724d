#pragma once

#include <QString>

/// What the build knows about itself. The source is configured by CMake, so that a change concerns one small
/// file.
namespace nBuildInformation {

/// How many commits the sources have come through: a number, so that version texts stay comparable. "0" where
/// the sources are not under version control.
QString revision();
/// "2018-06-30", or "unknown".
QString revisionDate();
/// In UTC, "Jun 30 2018"; taken once for a revision.
QString buildDate();
/// In UTC, "14:05:59".
QString buildTime();
/// The operating system and the width of its pointers: "linux64", "win64".
QString platform();

} // namespace nBuildInformation
