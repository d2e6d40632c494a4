// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "doctor_check.h"

#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <memory>

/// What the doctor finds: each check with its verdict, and below what is wrong, what to do.
class DoctorDialog : public QDialog
{
    Q_OBJECT

public:
    /// Checks the computer and one printer, or all of them when the name is empty. The checks run
    /// on a thread of their own, because the spooler may take its time.
    DoctorDialog(const QString& printer, const QString& catalogueFile, QWidget* parent = nullptr);
    /// Waits for the checks.
    ~DoctorDialog() override;
    Q_DISABLE_COPY_MOVE(DoctorDialog)

    void show(const QList<doctor::Check>& checks);
    /// Everything that was found, as lines of text.
    QString text() const;

Q_SIGNALS:
    void checked(const QList<doctor::Check>& checks);

private:
    QLabel m_summary;
    QTreeWidget m_list;
    QPushButton* m_copy = nullptr;
    std::unique_ptr<QThread> m_thread;
};
