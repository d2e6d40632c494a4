// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "standard_output.h"

#include <QtCore/QString>

#include <optional>

/// Asks the person at the console.
class Questions
{
public:
    explicit Questions(StandardOutput& output)
        : m_output(output)
    {}

    /// Asks until the answer is yes or no, in any of the kit's languages. No if the input has
    /// ended.
    bool isYes(const QString& question);
    /// Waits until the person presses Enter, if a person can.
    void waitForEnter(const QString& text);

private:
    StandardOutput& m_output;
};

/// Whether the word means yes or no, in English, German, Spanish, French, Italian, Japanese or
/// Chinese, written out or as its first letter. Nothing if it is neither.
std::optional<bool> answerOf(const QString& word);
