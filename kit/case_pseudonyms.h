// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace VxKit {

/// The pseudonyms of one case file: the same text always gets the same one.
class CasePseudonyms
{
public:
    /// "User 1", "User 2", in the order of the first question. `what` names the series. When there
    /// are more texts than a recording has, those that come later have one pseudonym together.
    QString of(const char* what, const QString& text);

    /// Pseudonyms of printers have the same order as their names, as far as they can.
    void learnPrinters(const QStringList& names);
    QString ofPrinter(const QString& name);
    /// The same for a name in the library's log, where characters that the system's code page does
    /// not have are broken.
    QString printerInLog(const QString& name);
    bool isPrinterInLog(const QString& name) const;

private:
    void insertPrinter(const QString& name, const QString& label);
    QString knownInLog(const QString& name) const;

    QHash<QByteArray, QHash<QString, QString>> m_series;
    QMap<QString, QString> m_printers;    ///< to what follows "Printer "
    QHash<QString, QString> m_asciiNames; ///< what the log surely has of a name, to the name
};

/// A text after `before` and before `after` in the order of their characters. The three consist of
/// digits and dots; `before` may be empty, and an empty `after` is the end.
QString labelBetween(const QString& before, const QString& after);

} // namespace VxKit
