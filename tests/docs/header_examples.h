// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the examples in the comments of headers use without declaring it. They are only compiled, so
// nothing here is defined.
#pragma once

#include <case_file.h>
#include <case_readings.h>
#include <case_redaction.h>
#include <printer_details.h>
#include <printer_events.h>
#include <printer_list_model.h>
#include <printer_list_view.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <usage_history.h>
#include <usage_history_reader.h>
#include <vx_ipc_m4_controller.h>
#include <vx_ipc_supplyd_controller.h>
#include <vxipcclient.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QTranslator>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QWidget>

/// A window of the host.
struct Example : QWidget
{
    static const QString name;
};

struct example_printer_status_information : Example
{
    static PrinterStatusController& controller;
};
struct example_printer_status_thread : Example
{
    static QObject receiver;
};
struct example_vx_ipc_m4_controller : Example
{
    static PrinterStatusController& controller;
    static const QString printerName;
};
struct example_vx_ipc_supplyd_controller : Example
{
    static PrinterStatusController& controller;
    static const QString printerName;
};
struct Table : Example
{
    void update(const QString& signalName, const QJsonObject& arguments);
    void askForAll();
    static VXIPCClient& status;
};
struct example_vxipcclient : Table
{
};

struct example_with_readings : Example
{
    static VxKit::PrinterReadings& readings;
};
struct example_case_file : Example
{
    static const QString fileName;
};
struct example_case_readings : Example
{
    static VxKit::CaseFile& file;
};
struct example_case_recorder : Example
{
    static VxKit::CaseRecorder& recorder;
};
struct example_case_redaction : Example
{
    static const QStringList names;
    static const QList<QJsonObject> lines;
    static QFile& file;
};
struct example_event_log : example_with_readings
{
};
struct example_event_log_reader : Example
{
    static const QString fileName;
};
struct example_preflight : example_with_readings
{
};
struct example_printer_events : example_with_readings
{
};
struct example_printer_forecasts : example_with_readings
{
};
struct example_printer_list_model : example_with_readings
{
    /// What QQuickView has; the library does not need Qt Quick.
    struct QuickView
    {
        void setInitialProperties(const QVariantMap& properties);
    };
    static QListView* listView;
    static QuickView& view;
};
struct example_printer_reading : example_with_readings
{
};
struct example_run_out_forecast : example_with_readings
{
};
struct example_status_info : Example
{
    static const PrinterStatusInformation& record;
    static QLabel* label;
};
struct example_usage_history : example_with_readings
{
};
struct example_usage_history_reader : Example
{
    static const QString key;
    static const QDateTime lastMonth;
    static void learn(const VxKit::UsageSample& sample);
};

struct example_level_plot : Example
{
    static const VxKit::UsageHistoryReader& history;
    static const QString key;
};
struct example_printer_details : Example
{
    static VxKit::PrinterListModel& model;
    static VxKit::PrinterEvents& events;
    static VxKit::PrinterListView* list;
};
struct example_view_palette : Example
{
    static QPainter& painter;
};
