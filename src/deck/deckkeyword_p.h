#pragma once

#include "codeckoption.h"
#include "codeckscanner.h"

/// A keyword of the options that this library writes.
struct DeckKeyword {
    const char* text;
    coDeckOption::Kind kind;
    bool isWholeLine; ///< otherwise fields or a name follow on the keyword's line

    /// The one that a line begins with, in any letter case; null for others.
    static const DeckKeyword* find(const coDeckLine& line);
    /// Whether a line begins with \a text, in any letter case.
    static bool begins(const coDeckLine& line, const char* text);
};
