// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "failure.h"

#include "standard_output.h"
#include "tool_text.h"

namespace {

ExitStatus run(const StandardOutput& output, const std::function<void()>& work)
{
    try {
        work();
        return ExitStatus::Done;
    } catch (const Failure& failure) {
        const bool isWrongUsage = failure.exitStatus() == ExitStatus::WrongUsage;
        for (const QStringList messages = failure.messages(); const QString& message : messages)
            output.complain(isWrongUsage
                                ? ToolText::tr("%1 (see %2 --help)").arg(message, output.toolName())
                                : message);
        return failure.exitStatus();
    } catch (const std::exception& exception) {
        // The library throws when the spooler lists a printer without a name, port or driver.
        output.complain(QString::fromLocal8Bit(exception.what()));
        return ExitStatus::Failed;
    }
}

} // namespace

int runTool(StandardOutput& output, const std::function<void()>& work)
{
    return output.exitStatus(static_cast<int>(run(output, work)));
}
