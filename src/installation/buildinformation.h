#pragma once

#include <QString>

/// What the build knows about itself. The source is configured by CMake, so that a change concerns one small
/// file.
namespace nBuildInformation {

/// The number of the source revision in decimal, "0" where the sources are not under version control.
QString revision();
/// "2018-06-30"; the build date where the revision is not known.
QString revisionDate();
/// UTC, "2018-06-30"; taken when this revision was first configured, or from SOURCE_DATE_EPOCH.
QString buildDate();
/// UTC, "14:05:59".
QString buildTime();
/// The operating system and the width of its pointers: "linux64", "win64".
QString platform();

} // namespace nBuildInformation
