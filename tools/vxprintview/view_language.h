// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>
#include <vector>

class QTranslator;

/// The language of the window, which can be changed while it is open.
class ViewLanguage
{
public:
    ViewLanguage();
    ~ViewLanguage();
    Q_DISABLE_COPY_MOVE(ViewLanguage)

    struct Choice
    {
        QString tag;  ///< "de", "zh_CN"
        QString name; ///< in its own language
    };
    /// English and all that have translations.
    static QList<Choice> choices();

    /// Speaks a language from now on; with an empty tag that of the user, as far as there are texts
    /// in it. False, without any effect, when there are no texts in it.
    bool use(const QString& tag);
    QString tag() const { return m_tag; }

private:
    QString m_tag;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
