#pragma once

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

/// The options of the command line, with what the help says of them: in English where there is no
/// application yet, whose translations it needs.
struct CommandLineOptions
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               tr("Print to the printer NAME: a queue, an instance NAME/INSTANCE, "
                                  "or an IPP printer ipp://HOST/PATH."),
                               QStringLiteral("NAME")};
    QCommandLineOption server{
        {QStringLiteral("h"), QStringLiteral("server")},
        tr("Use the queues of the print server HOST instead of the usual one."),
        QStringLiteral("HOST[:PORT]")};
    QCommandLineOption encrypt{QStringLiteral("E"),
                               tr("Speak to the print server with encryption only.")};
    QCommandLineOption user{QStringLiteral("U"), tr("Print as the user USER."),
                            QStringLiteral("USER")};
    QCommandLineOption passwordFile{QStringLiteral("password-file"),
                                    tr("Take the password from the first line of FILE, which "
                                       "nobody but its owner may read; nobody is asked."),
                                    QStringLiteral("FILE")};
    QCommandLineOption passwordDescriptor{
        QStringLiteral("password-fd"),
        tr("The same from the open file descriptor N (0 is standard input)."), QStringLiteral("N")};
    QCommandLineOption documentPasswordFile{
        QStringLiteral("document-password-file"),
        tr("Open protected PDF documents with the password in the first line of FILE, which nobody "
           "but its owner may read."),
        QStringLiteral("FILE")};
    QCommandLineOption ppd{QStringLiteral("ppd"),
                           tr("Print for the printer that the PPD FILE describes."),
                           QStringLiteral("FILE")};
    QCommandLineOption output{QStringLiteral("output"),
                              tr("Write the printer-ready data to FILE; - is standard output."),
                              QStringLiteral("FILE")};
    QCommandLineOption demo{QStringLiteral("demo"), tr("Offer the sample printers.")};
    QCommandLineOption listPrinters{QStringLiteral("list-printers"),
                                    tr("List the printers and exit.")};
    QCommandLineOption preset{QStringLiteral("preset"),
                              tr("Start with the settings of the preset NAME; -o counts more."),
                              QStringLiteral("NAME")};
    QCommandLineOption listPresets{QStringLiteral("list-presets"),
                                   tr("List the presets and exit.")};
    QCommandLineOption savePreset{
        QStringLiteral("save-preset"),
        tr("Keep the settings of the printer, those of -o among them, as the preset NAME, and "
           "exit. A preset of that name is replaced."),
        QStringLiteral("NAME")};
    QCommandLineOption checkPolicy{
        QStringLiteral("check-policy"),
        tr("Say what the administrator's policy decides, and where, for the printer that is named "
           "behind it or by -d; as root with -U for another user. Exit with status 1 when "
           "something of it is not used.")};
    QCommandLineOption yes{QStringLiteral("yes"),
                           tr("Print a job of many sheets without being asked.")};
    QCommandLineOption option{{QStringLiteral("o"), QStringLiteral("option")},
                              tr("Set an option of the printer or of the job; may be repeated."),
                              QStringLiteral("KEY=VALUE")};
    QCommandLineOption copies{{QStringLiteral("n"), QStringLiteral("copies")},
                              tr("Print N copies (1 to %1).").arg(kMostCopies),
                              QStringLiteral("N")};
    QCommandLineOption pages{QStringLiteral("P"),
                             tr("Print these pages (1-4,7,9-), as -o page-ranges= does."),
                             QStringLiteral("LIST")};
    QCommandLineOption priority{
        QStringLiteral("q"), tr("Give the job this priority (1 to 100), as -o job-priority= does."),
        QStringLiteral("PRIORITY")};
    QCommandLineOption hold{
        QStringLiteral("H"),
        tr("When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes."),
        QStringLiteral("WHEN")};
    QCommandLineOption quiet{QStringLiteral("s"),
                             tr("Do not say which job was printed, only what went wrong.")};
    QCommandLineOption copy{QStringLiteral("c"),
                            tr("Does nothing: the document is always copied to the queue.")};
    QCommandLineOption mail{QStringLiteral("m"), tr("Is refused: no mail is sent.")};
    QCommandLineOption title{{QStringLiteral("t"), QStringLiteral("title")},
                             tr("Name the job TEXT."),
                             QStringLiteral("TEXT")};
    QCommandLineOption noDialog{QStringLiteral("no-dialog"), tr("Print without a window.")};
    QCommandLineOption summary{QStringLiteral("summary"),
                               tr("Write the settings of the job to standard output.")};
    QCommandLineOption saveInstance{
        QStringLiteral("save-instance"),
        tr("Without a window: keep the settings in lpoptions as an instance of the queue, so that "
           "lp -d QUEUE/NAME and other programs print with them."),
        QStringLiteral("NAME")};
    QCommandLineOption alsoOn{QStringLiteral("also-on"),
                              tr("With --save-instance: make such an instance of these queues as "
                                 "well, with what each of them needs to print the same."),
                              QStringLiteral("QUEUE[,QUEUE...]")};
    /// For the program itself, which runs itself for the other queues of a preset.
    QCommandLineOption followPreset{QStringLiteral("follow-preset"), {}, QStringLiteral("MODEL")};
    QCommandLineOption onAlert{
        QStringLiteral("on-alert"),
        tr("Without a window: what to do when the printer's settings show instructions: print, "
           "hold or refuse. Usually a queue holds the job, and a file is printed."),
        QStringLiteral("POLICY")};
    QCommandLineOption noWait{
        QStringLiteral("no-wait"),
        tr("Without a window: end when the queue has the job, not when it is printed.")};
    QCommandLineOption wait{QStringLiteral("wait"),
                            tr("Without a window: follow the job for SECONDS at most once its "
                               "queue has it, then leave it there."),
                            QStringLiteral("SECONDS")};
    QCommandLineOption format{
        QStringLiteral("format"),
        tr("Without a window: json writes what became of the job to standard output, as one line "
           "that a program can read; text is what people read."),
        QStringLiteral("FORMAT")};
    QCommandLineOption bundleRoot{QStringLiteral("bundle-root"),
                                  tr("Also trust the plug-in bundles in the folder DIR."),
                                  QStringLiteral("DIR")};
    QCommandLineOption checkDisplay{
        QStringLiteral("check-display"),
        tr("Exit with status 0 when a window can be shown, with 1 when not.")};
    QCommandLineOption help{QStringLiteral("help"), tr("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), tr("Show the version.")};

    /// In the order of the help.
    QList<QCommandLineOption> all() const
    {
        return {printer,
                server,
                encrypt,
                user,
                passwordFile,
                passwordDescriptor,
                documentPasswordFile,
                ppd,
                output,
                demo,
                listPrinters,
                preset,
                listPresets,
                savePreset,
                checkPolicy,
                yes,
                option,
                copies,
                pages,
                priority,
                hold,
                title,
                quiet,
                copy,
                mail,
                noDialog,
                summary,
                saveInstance,
                alsoOn,
                onAlert,
                wait,
                noWait,
                format,
                bundleRoot,
                checkDisplay,
                help,
                version};
    }
};

} // namespace corvana
