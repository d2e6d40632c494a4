// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <status_info.h>

#include <QtCore/QRect>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <array>
#include <optional>

/// How many printers there are of each severity. A press on one of the counts shows these printers
/// only. Where they have no room beside each other, they stand below each other.
class OverviewBar : public QWidget
{
    Q_OBJECT

public:
    /// In the order in which they are shown: the worst first.
    static constexpr std::array severities{VxKit::Severity::Error, VxKit::Severity::Warning,
                                           VxKit::Severity::Information, VxKit::Severity::Ok};
    using Counts = std::array<int, severities.size()>;

    explicit OverviewBar(QWidget* parent = nullptr);

    void setCounts(const Counts& counts);
    /// Without a value, all printers are chosen.
    void setChosen(std::optional<VxKit::Severity> severity);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(std::optional<VxKit::Severity> severity);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void retranslate();
    /// The places of the buttons, in as many lines as a width needs.
    std::array<QRect, severities.size()> placesIn(int width) const;
    void place();
    static QString label(VxKit::Severity severity, int count);

    Counts m_counts{};
    std::array<QToolButton*, severities.size()> m_buttons{};
};
