// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_file.h"
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "printer_names.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <preflight.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <vx_ipc_supplyd_controller.h>

using VxKit::PreflightResult;
using Answer = PreflightResult::Answer;

namespace {

int labelsOf(const QString& text)
{
    bool isNumber = false;
    const int labels = text.toInt(&isNumber);
    if (!isNumber || labels < 1)
        throw wrongUsage(
            ToolText::tr("enough takes a number of labels between 1 and 2147483647, found \"%1\"")
                .arg(text));
    return labels;
}

/// The SKU that is meant by what was typed. What is not in the catalogue may be the SKU of another
/// catalogue, but more often it is mistyped.
QString skuMeant(const QString& typed, const QStringList& skus, const Output& output)
{
    if (const std::optional<QString> sku = printer_names::meant(typed, skus))
        return *sku;
    // Without a catalogue, that has been said once.
    if (skus.isEmpty())
        return typed;
    const QStringList near = printer_names::nearest(typed, skus);
    output.complain(near.isEmpty() ? ToolText::tr("the catalogue has no %1").arg(typed)
                                   : ToolText::tr("the catalogue has no %1; did you mean %2?")
                                         .arg(typed, near.join(QStringLiteral(", "))));
    return typed;
}

void print(Output& output, const PreflightResult& result)
{
    const auto lines = [&output](const QString& text) {
        for (const QStringList wrapped = text_layout::wrapped(shown(text), output.columns());
             const QString& line : wrapped)
            output.line({{line}});
    };
    if (result.findings.isEmpty())
        lines(result.text());
    for (const VxKit::PreflightFinding& finding : result.findings)
        lines(result.text(finding));
}

} // namespace

void checkEnough(const CommandLine& line)
{
    labelsOf(line.arguments.at(2));
}

void runEnough(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    const VxKit::PrinterReadings readings(&controller);
    const QString printer = printer_names::withReading(line.arguments.first(), readings);

    VXIPCSUPPLYDController& supplies = *controller.getSupplyIdController();
    const QString supply = skuMeant(line.arguments.at(1), supplies.supplySKUList(), output);
    QStringList ribbons;
    for (const QStringList typed = line.arguments.mid(3); const QString& sku : typed)
        ribbons.append(skuMeant(sku, supplies.supplyRibbonSKUList(), output));

    const PreflightResult result =
        VxKit::Preflight(&readings).check(printer, supply, labelsOf(line.arguments.at(2)), ribbons);
    if (line.json)
        output.text(json_text::value(result.toJson()) + QLatin1Char('\n'));
    else
        print(output, result);
    if (result.answer() == Answer::No)
        throw Failure(QStringList(), ExitStatus::AnswerIsNo);
    if (result.answer() == Answer::NotKnown)
        throw Failure(QStringList(), ExitStatus::AnswerIsNotKnown);
}
