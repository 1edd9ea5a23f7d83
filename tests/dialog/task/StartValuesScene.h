#pragma once

#include <memory>
#include <vector>

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

#include "dialog/policy/PolicyLocks.h"
#include "dialog/presets/LastUsed.h"
#include "dialog/presets/PresetStore.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PrintRequest.h"
#include "dialog/task/StartValues.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

namespace corvana::test {

/// A printer that is opened, and a job whose values start in the places that a test says. The base
/// of tests of both.
class StartValuesScene : public QObject
{
    Q_OBJECT

protected:
    using By = JobSettings::By;

    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;
    ScriptedAlertPresenter m_presenter;
    FetchedPrinter m_fetched;
    PrintRequest m_request;
    JobSettings m_settings;
    std::unique_ptr<OpenedPrinter> m_printer;

    void setUserOptions(const QString &options)
    {
        QDir(m_home->path()).mkpath(QStringLiteral(".cups"));
        writeFile(m_home->filePath(QStringLiteral(".cups/lpoptions")),
                  "Dest office " + options.toUtf8() + '\n');
    }
    // Says an option in the place that a layer reads.
    void say(By by, const QString &option)
    {
        switch (by) {
        case By::Queue:
            m_fetched.defaults = parseOptions({option});
            break;
        case By::UserQueues:
            setUserOptions(option);
            break;
        case By::LastUsed:
            m_request.remembersLastUsed = true;
            writeLastUsed(m_fetched.printer, m_request.server.text(), contentWith(option));
            break;
        case By::Preset: {
            Preset preset;
            preset.name = m_request.preset = QStringLiteral("Reports");
            preset.content = contentWith(option);
            PresetStore(m_request.presetPlaces).save(preset, PresetStore::Replacing::Yes);
            break;
        }
        case By::Policy: {
            QByteArray text = "[all]\n";
            const QList<JobOption> options = parseOptions({option});
            for (const JobOption &one : options)
                text += "default." + one.name.toUtf8() + '=' + one.value.toUtf8() + '\n';
            m_request.policy = policyFrom(text);
            break;
        }
        default:
            m_request.options = parseOptions({option});
        }
    }
    static PresetContent contentWith(const QString &option)
    {
        PresetContent content;
        for (const JobOption &one : parseOptions({option})) {
            if (isKept(one.name))
                content.attributes.insert(one.name, one.value);
            else
                content.options.insert(one.name, one.value);
        }
        return content;
    }
    StartOutcome start()
    {
        QString error;
        m_printer = openPrinter(m_fetched, {}, m_presenter, &error, [this](OpenedPrinter &opened) {
            lockSettings(policyOf(m_request).locksOf(opened.fetched.printer), *opened.session,
                         opened.jobValues);
        });
        m_settings.setLocks(m_printer->session->locks());
        return applyStartValues(m_request, *m_printer, m_settings);
    }
    QString attribute(const QString &name)
    {
        for (const JobOption &option : m_settings.attributes()) {
            if (option.name == name)
                return option.value;
        }
        return {};
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_variables.push_back(std::make_unique<Variable>("HOME", m_home->path().toUtf8()));
        m_variables.push_back(std::make_unique<Variable>("XDG_DATA_HOME", m_home->path().toUtf8()));
        m_variables.push_back(std::make_unique<Variable>("CUPS_SERVERROOT", "/nonexistent"));
        m_fetched = {};
        m_fetched.printer.name = QStringLiteral("office");
        m_fetched.printer.origin = PrinterOrigin::Queue;
        m_fetched.ppd =
            ppdOfFile(writeFile(m_home->filePath(QStringLiteral("a.ppd")), smallPrinter().text()));
        m_request = {};
        m_request.presetPlaces = {m_home->filePath(QStringLiteral("presets"))};
        m_settings = {};
    }
    void cleanup()
    {
        m_printer.reset();
        m_variables.clear();
        m_home.reset();
    }
};

} // namespace corvana::test
