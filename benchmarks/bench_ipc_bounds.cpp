// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// For how long at a time one request from another process occupies the host's thread: for each
// method of each endpoint, with arguments at their bounds, and for requests that are refused.
#include "benchmark_support.h"
#include "sqlite_statement.h"

#include <json_rpc.h>
#include <vx_ipc_m4_controller.h>
#include <vx_ipc_printqd_controller.h>
#include <vx_ipc_supplyd_controller.h>
#include <vxipcclient.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QThread>
#include <QtNetwork/QLocalSocket>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr double longestLimit = 5.0;
constexpr int samplesPerRequest = 5;
constexpr int slowestShown = 5;
constexpr int answerTime = 30000;
/// The supply database's own bound.
constexpr qsizetype skuLength = 40;

const QString printerName = QStringLiteral("Stratamark CedarMax 4 (warehouse)");

// The host.

/// The three endpoints on a thread of their own, with a printer in which as much is loaded as other
/// processes can report.
class Host
{
public:
    Host()
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
        onThread([this] {
            m_supplies = std::make_unique<VXIPCSUPPLYDController>();
            m_printers = std::make_unique<VXIPCM4Controller>();
            m_queue = std::make_unique<VXIPCPRINTQDController>();
            m_supplies->addNewPrinter(printerName);
            QObject::connect(
                QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                &m_context, [this] { endStretch(); }, Qt::DirectConnection);
        });
        // They are published from the event loop, before this is called.
        onThread([this] {
            m_names = {m_supplies->serverName(), m_printers->serverName(), m_queue->serverName()};
        });
    }

    ~Host()
    {
        onThread([this] {
            QAbstractEventDispatcher::instance()->disconnect(&m_context);
            m_supplies.reset();
            m_printers.reset();
            m_queue.reset();
        });
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Host)

    const std::array<QString, 3>& names() const { return m_names; }

    void load(const QString& supplyId, const QStringList& ribbonIds)
    {
        onThread([&] {
            m_supplies->setSupplyId(supplyId, printerName);
            m_supplies->setRibbonIds(ribbonIds, printerName);
        });
    }

    /// The longest time since the last call, in milliseconds of processor time, that the thread
    /// worked without looking for other events.
    double takeLongestStretch()
    {
        double longest = 0;
        onThread([&] {
            endStretch();
            longest = std::exchange(m_longest, 0);
        });
        return longest / 1000;
    }

private:
    void onThread(const std::function<void()>& work)
    {
        QMetaObject::invokeMethod(&m_context, work, Qt::BlockingQueuedConnection);
    }

    void endStretch()
    {
        const double now = benchmark_support::processorTime();
        m_longest = std::max(m_longest, now - m_begin);
        m_begin = now;
    }

    QThread m_thread;
    QObject m_context;
    std::unique_ptr<VXIPCSUPPLYDController> m_supplies;
    std::unique_ptr<VXIPCM4Controller> m_printers;
    std::unique_ptr<VXIPCPRINTQDController> m_queue;
    std::array<QString, 3> m_names;
    double m_begin = 0;
    double m_longest = 0;
};

/// Sends lines and waits for the answers.
class Client
{
public:
    explicit Client(const QString& serverName)
    {
        m_socket.connectToServer(VXIPCClient::address(serverName));
        m_socket.waitForConnected();
    }

    /// Empty when no answer comes.
    QByteArray exchange(const QByteArray& line)
    {
        m_socket.write(line);
        while (!m_socket.canReadLine()) {
            const bool isMoving = m_socket.bytesToWrite() > 0
                                      ? m_socket.waitForBytesWritten(answerTime)
                                      : m_socket.waitForReadyRead(answerTime);
            if (!isMoving)
                return {};
        }
        return m_socket.readLine();
    }

private:
    QLocalSocket m_socket;
};

// The requests.

struct Request
{
    std::string name;
    /// A different line each time, for requests in which something has to be new.
    std::function<QByteArray()> line;
    /// The expected error; 0 for a result.
    int errorCode = 0;
};

/// What the database has.
struct Load
{
    QString supplyId;
    QString supplySku;
    QStringList ribbonIds;
    QStringList ribbonSkus;
};

Load readLoad()
{
    const SqliteFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db"));
    Load load;
    SqliteStatement supply(file, R"(
        SELECT printf('%08X%06d%06X', 500, k.kind, 167), k.supply_sku
        FROM supply_kind k
        JOIN supply s ON s.sku = k.supply_sku
        ORDER BY s.background_id IS NULL
        LIMIT 1)");
    if (supply.step()) {
        load.supplyId = supply.text(0);
        load.supplySku = supply.text(1);
    }
    SqliteStatement ribbon(file, "SELECT number || '', ribbon_sku FROM ribbon_number");
    while (load.ribbonIds.size() < json_rpc::maximumEntries && ribbon.step()) {
        load.ribbonIds.append(ribbon.text(0));
        load.ribbonSkus.append(ribbon.text(1));
    }
    // And ribbons that the database does not know, up to as many as may be reported.
    for (int number = 99999; load.ribbonIds.size() < json_rpc::maximumEntries; --number)
        load.ribbonIds.append(QString::number(number));
    return load;
}

/// A way to fill in a text, and the texts of a list.
struct Filling
{
    const char* name;
    std::function<QString(const QString& parameter, qsizetype place)> text;
};

std::vector<Filling> fillings(const Load& load)
{
    return {
        {"longest text",
         [](const QString&, qsizetype) {
             return QString(json_rpc::maximumText, u'x');
         }},
        {"longest text of quotes",
         [](const QString&, qsizetype) {
             return QString(json_rpc::maximumText, u'"');
         }},
        {"longest text of surrogates",
         [](const QString&, qsizetype) {
             return QStringLiteral("\U0001F5A8").repeated(json_rpc::maximumText / 2);
         }},
        {"SKU that was not asked for before",
         [count = 0](const QString&, qsizetype) mutable {
             return QStringLiteral("N%1").arg(++count, static_cast<int>(skuLength) - 1, 10,
                                              QLatin1Char('0'));
         }},
        {"what the database has",
         [load](const QString& parameter, qsizetype place) {
             if (parameter == QStringLiteral("printerName"))
                 return printerName;
             if (parameter.startsWith(QStringLiteral("ribbon")))
                 return load.ribbonSkus.at(place % load.ribbonSkus.size());
             return load.supplySku;
         }},
    };
}

bool takesTexts(const QJsonValue& parameter)
{
    return parameter[QStringLiteral("x-type")].toString().startsWith(QStringLiteral("QString"));
}

QJsonValue argument(const QJsonValue& parameter, const Filling& filling)
{
    const QString name = parameter[QStringLiteral("name")].toString();
    const QString type = parameter[QStringLiteral("x-type")].toString();
    if (type == QStringLiteral("QString"))
        return filling.text(name, 0);
    if (type == QStringLiteral("bool"))
        return true;
    if (type != QStringLiteral("QStringList"))
        return 1;
    QJsonArray texts;
    for (qsizetype i = 0; i < json_rpc::maximumEntries; ++i)
        texts.append(filling.text(name, i));
    return texts;
}

QByteArray requestLine(const QString& method, const QJsonValue& parameters)
{
    return json_rpc::request(method, parameters, 1);
}

/// The method with every filling of each argument that takes texts.
void addRequests(std::vector<Request>& requests, const QJsonValue& method,
                 const std::vector<Filling>& fillings)
{
    const QString name = method[QStringLiteral("name")].toString();
    const QJsonArray parameters = method[QStringLiteral("params")].toArray();
    std::size_t combinations = 1;
    for (const QJsonValue& parameter : parameters)
        combinations *= takesTexts(parameter) ? fillings.size() : 1;
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        std::vector<Filling> chosen;
        std::string names;
        for (std::size_t rest = combination; const QJsonValue& parameter : parameters) {
            chosen.push_back(fillings.at(takesTexts(parameter) ? rest % fillings.size() : 0));
            if (!takesTexts(parameter))
                continue;
            names += std::string(names.empty() ? "" : ", ") + chosen.back().name;
            rest /= fillings.size();
        }
        requests.push_back({name.toStdString() + '(' + names + ')',
                            [name, parameters, chosen] {
                                QJsonArray arguments;
                                for (qsizetype i = 0; i < parameters.size(); ++i) {
                                    arguments.append(argument(
                                        parameters.at(i), chosen.at(static_cast<std::size_t>(i))));
                                }
                                return requestLine(name, arguments);
                            },
                            0});
    }
}

/// The longest line that is read, with a line end: `filler` is repeated between `begin` and `end`.
QByteArray longestLine(const QByteArray& begin, const QByteArray& filler, const QByteArray& end)
{
    const qsizetype room = json_rpc::maximumLine - begin.size() - end.size();
    return begin + filler.repeated(room / filler.size()) + end + '\n';
}

/// Requests that are refused, of the greatest length that is read.
std::vector<Request> refusedRequests()
{
    using namespace json_rpc;
    const auto fixed = [](const char* name, const QByteArray& line, int errorCode) {
        return Request{name, [line] { return line; }, errorCode};
    };
    // Padded so that the greatest number of values that are read fills the line.
    const auto padded = [](const QByteArray& filler) {
        return filler.leftJustified(2 * maximumLine / maximumLineValues + 1);
    };
    const QByteArray call = R"({"jsonrpc":"2.0","id":1,"method":")";
    const QByteArray ask = call + R"(getPrinterStatus","params":)";
    const QByteArray set = call + R"(setRibbonIds","params":[[")";
    return {
        fixed("text of a mebibyte", longestLine(ask + "[\"", "x", "\"]}"), InvalidParams),
        fixed("text of a mebibyte of escapes", longestLine(ask + "[\"", "\\u0001", "\"]}"),
              InvalidParams),
        fixed("list of texts", longestLine(set, padded("\",\""), "\"],\"-\"]}"), InvalidParams),
        fixed("list of lists", longestLine(set + "\"", padded(",[]"), "],\"-\"]}"), InvalidParams),
        fixed("many arguments", longestLine(ask + "[1", padded(",1"), "]}"), InvalidParams),
        fixed("more values than are read", longestLine(ask + "[1", ",1", "]}"), InvalidRequest),
        fixed("long name of an argument", longestLine(ask + "{\"", "n", "\":1}}"), InvalidParams),
        fixed("long name of a method", longestLine(call, "m", "\"}"), MethodNotFound),
        fixed("long id",
              longestLine(R"({"jsonrpc":"2.0","method":"getError","id":")", "\\u0001", "\"}"),
              InvalidRequest),
        fixed("a text that does not end", longestLine("[\"", "x", ""), ParseError),
        fixed("a line of blanks and a bracket", longestLine("", " ", "["), ParseError),
    };
}

// The measurement.

/// Milliseconds, by what was asked.
using Times = std::map<std::string, std::vector<double>>;

enum Kind
{
    First,
    Again,
    RefusedRequests,
    KindCount,
};
constexpr std::array<const char*, KindCount> kindNames{
    "a request to new endpoints", "a request once more", "a request that is refused"};
std::array<Times, KindCount> timesOf;

int errorCodeOf(const QByteArray& line)
{
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    if (answer.isEmpty())
        return std::numeric_limits<int>::min();
    return answer[QStringLiteral("error")][QStringLiteral("code")].toInt();
}

/// The time that a request takes; negative when its answer is not the expected one.
double timeOf(Host& host, Client& client, const Request& request)
{
    const QByteArray line = request.line();
    host.takeLongestStretch();
    const QByteArray answer = client.exchange(line);
    const double time = host.takeLongestStretch();
    const int code = errorCodeOf(answer);
    // An endpoint may refuse to store an argument although it is within the bounds.
    if (code == request.errorCode || (request.errorCode == 0 && code == json_rpc::Refused))
        return time;
    std::fprintf(stderr, "%s: %s\n", request.name.c_str(), answer.left(300).constData());
    return -1;
}

/// By endpoint.
std::array<std::vector<Request>, 3> allRequests(const Load& load)
{
    const Host host;
    std::array<std::vector<Request>, 3> requests;
    for (std::size_t i = 0; i < requests.size(); ++i) {
        Client client(host.names().at(i));
        const QString discover = QStringLiteral("rpc.discover");
        requests.at(i).push_back(
            {"rpc.discover", [discover] { return requestLine(discover, {}); }, 0});
        const QJsonDocument document =
            QJsonDocument::fromJson(client.exchange(requestLine(discover, {})));
        for (const QJsonArray methods =
                 document[QStringLiteral("result")][QStringLiteral("methods")].toArray();
             const QJsonValue& method : methods)
            addRequests(requests.at(i), method, fillings(load));
    }
    return requests;
}

void enter(benchmark::State& state, Kind kind, const Request& request, double time)
{
    if (time < 0)
        state.SkipWithError("an answer was lost or wrong");
    else
        timesOf.at(kind)[request.name].push_back(time);
}

void taken(benchmark::State& state)
{
    const Load load = readLoad();
    const std::array<std::vector<Request>, 3> requests = allRequests(load);
    for ([[maybe_unused]] auto iteration : state) {
        for (std::size_t i = 0; i < requests.size(); ++i) {
            for (const Request& request : requests.at(i)) {
                Host host;
                host.load(load.supplyId, load.ribbonIds);
                Client client(host.names().at(i));
                enter(state, First, request, timeOf(host, client, request));
                enter(state, Again, request, timeOf(host, client, request));
            }
        }
    }
}

void refused(benchmark::State& state)
{
    // The printer controller and the supply database have one of the methods each, and the
    // arguments are checked before the method is called.
    const std::vector<Request> requests = refusedRequests();
    for ([[maybe_unused]] auto iteration : state) {
        for (const Request& request : requests) {
            Host host;
            const bool isOfSupplies = request.line().contains("setRibbonIds");
            Client client(host.names().at(isOfSupplies ? 0 : 1));
            enter(state, RefusedRequests, request, timeOf(host, client, request));
        }
    }
}

BENCHMARK(taken)->Iterations(samplesPerRequest)->Unit(benchmark::kMillisecond);
BENCHMARK(refused)->Iterations(samplesPerRequest)->Unit(benchmark::kMillisecond);

/// The medians, slowest first.
std::vector<std::pair<double, std::string>> slowestOf(const Times& times)
{
    std::vector<std::pair<double, std::string>> medians;
    for (const auto& [name, samples] : times)
        medians.emplace_back(benchmark_support::median(samples), name);
    std::sort(medians.begin(), medians.end(), std::greater<>());
    return medians;
}

/// Shows the slowest requests, too.
void enterLimits(benchmark_support::Limits& limits)
{
    for (int kind = 0; kind < KindCount; ++kind) {
        const auto slowest = slowestOf(timesOf.at(static_cast<std::size_t>(kind)));
        const std::string name = kindNames.at(static_cast<std::size_t>(kind));
        std::printf("\n%s, the slowest of %zu:\n", name.c_str(), slowest.size());
        for (std::size_t i = 0; i < std::min<std::size_t>(slowestShown, slowest.size()); ++i)
            std::printf("%8.3f ms  %s\n", slowest.at(i).first, slowest.at(i).second.c_str());
        limits.atMost(name,
                      slowest.empty() ? std::numeric_limits<double>::quiet_NaN()
                                      : slowest.front().first,
                      longestLimit, " ms");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    return benchmark_support::run(argc, argv, enterLimits);
}
