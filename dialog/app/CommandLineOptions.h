#pragma once

#include <QCommandLineParser>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

/// The options of the command line. It is read before there is an application, whose translations
/// would be needed for anything but English.
struct CommandLineOptions
{
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               QStringLiteral("Print to the printer NAME: a queue, an instance "
                                              "NAME/INSTANCE, or an IPP printer ipp://HOST/PATH."),
                               QStringLiteral("NAME")};
    QCommandLineOption server{
        {QStringLiteral("h"), QStringLiteral("server")},
        QStringLiteral("Use the queues of the print server HOST instead of the usual one."),
        QStringLiteral("HOST[:PORT]")};
    QCommandLineOption encrypt{QStringLiteral("E"),
                               QStringLiteral("Speak to the print server with encryption only.")};
    QCommandLineOption user{QStringLiteral("U"), QStringLiteral("Print as the user USER."),
                            QStringLiteral("USER")};
    QCommandLineOption passwordFile{
        QStringLiteral("password-file"),
        QStringLiteral(
            "Take the password from the first line of FILE, which nobody but its owner may read; "
            "nobody is asked."),
        QStringLiteral("FILE")};
    QCommandLineOption passwordDescriptor{
        QStringLiteral("password-fd"),
        QStringLiteral("The same from the open file descriptor N (0 is standard input)."),
        QStringLiteral("N")};
    QCommandLineOption documentPasswordFile{
        QStringLiteral("document-password-file"),
        QStringLiteral("Open protected PDF documents with the password in the first line of FILE, "
                       "which nobody "
                       "but its owner may read."),
        QStringLiteral("FILE")};
    QCommandLineOption ppd{QStringLiteral("ppd"),
                           QStringLiteral("Print for the printer that the PPD FILE describes."),
                           QStringLiteral("FILE")};
    QCommandLineOption output{
        QStringLiteral("output"),
        QStringLiteral("Write the printer-ready data to FILE; - is standard output."),
        QStringLiteral("FILE")};
    QCommandLineOption demo{QStringLiteral("demo"), QStringLiteral("Offer the sample printers.")};
    QCommandLineOption listPrinters{QStringLiteral("list-printers"),
                                    QStringLiteral("List the printers and exit.")};
    QCommandLineOption preset{
        QStringLiteral("preset"),
        QStringLiteral("Start with the settings of the preset NAME; -o counts more."),
        QStringLiteral("NAME")};
    QCommandLineOption listPresets{QStringLiteral("list-presets"),
                                   QStringLiteral("List the presets and exit.")};
    QCommandLineOption savePreset{QStringLiteral("save-preset"),
                                  QStringLiteral("Keep the settings of the printer, those of -o "
                                                 "among them, as the preset NAME, and exit. "
                                                 "A preset of that name is replaced."),
                                  QStringLiteral("NAME")};
    QCommandLineOption checkPolicy{
        QStringLiteral("check-policy"),
        QStringLiteral(
            "Say what the administrator's policy decides, and where, for the printer that is named "
            "behind it or by -d; as root with -U for another user. Exit with status 1 when "
            "something "
            "of it is not used.")};
    QCommandLineOption yes{QStringLiteral("yes"),
                           QStringLiteral("Print a job of many sheets without being asked.")};
    QCommandLineOption option{
        {QStringLiteral("o"), QStringLiteral("option")},
        QStringLiteral("Set an option of the printer or of the job; may be repeated."),
        QStringLiteral("KEY=VALUE")};
    QCommandLineOption copies{{QStringLiteral("n"), QStringLiteral("copies")},
                              QStringLiteral("Print N copies (1 to %1).").arg(kMostCopies),
                              QStringLiteral("N")};
    QCommandLineOption pages{
        QStringLiteral("P"),
        QStringLiteral("Print these pages (1-4,7,9-), as -o page-ranges= does."),
        QStringLiteral("LIST")};
    QCommandLineOption priority{
        QStringLiteral("q"),
        QStringLiteral("Give the job this priority (1 to 100), as -o job-priority= does."),
        QStringLiteral("PRIORITY")};
    QCommandLineOption hold{
        QStringLiteral("H"),
        QStringLiteral(
            "When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= "
            "takes."),
        QStringLiteral("WHEN")};
    QCommandLineOption quiet{
        QStringLiteral("s"),
        QStringLiteral("Do not say which job was printed, only what went wrong.")};
    QCommandLineOption copy{
        QStringLiteral("c"),
        QStringLiteral("Does nothing: the document is always copied to the queue.")};
    QCommandLineOption mail{QStringLiteral("m"), QStringLiteral("Is refused: no mail is sent.")};
    QCommandLineOption title{{QStringLiteral("t"), QStringLiteral("title")},
                             QStringLiteral("Name the job TEXT."),
                             QStringLiteral("TEXT")};
    QCommandLineOption noDialog{QStringLiteral("no-dialog"),
                                QStringLiteral("Print without a window.")};
    QCommandLineOption summary{QStringLiteral("summary"),
                               QStringLiteral("Write the settings of the job to standard output.")};
    QCommandLineOption saveInstance{
        QStringLiteral("save-instance"),
        QStringLiteral("Without a window: keep the settings in lpoptions as an instance of the "
                       "queue, so that lp "
                       "-d QUEUE/NAME and other programs print with them."),
        QStringLiteral("NAME")};
    QCommandLineOption onAlert{
        QStringLiteral("on-alert"),
        QStringLiteral("Without a window: what to do when the printer's settings "
                       "show instructions: print, hold or refuse. Usually a queue holds the job, "
                       "and a file is printed."),
        QStringLiteral("POLICY")};
    QCommandLineOption noWait{
        QStringLiteral("no-wait"),
        QStringLiteral("Without a window: end when the queue has the job, not when it is "
                       "printed.")};
    QCommandLineOption wait{QStringLiteral("wait"),
                            QStringLiteral("Without a window: follow the job for SECONDS at most "
                                           "once its queue has it, then leave "
                                           "it there."),
                            QStringLiteral("SECONDS")};
    QCommandLineOption format{
        QStringLiteral("format"),
        QStringLiteral(
            "Without a window: json writes what became of the job to standard output, as one line "
            "that a program can read; text is what people read."),
        QStringLiteral("FORMAT")};
    QCommandLineOption bundleRoot{
        QStringLiteral("bundle-root"),
        QStringLiteral("Also trust the plug-in bundles in the folder DIR."), QStringLiteral("DIR")};
    QCommandLineOption checkDisplay{
        QStringLiteral("check-display"),
        QStringLiteral("Exit with status 0 when a window can be shown, with 1 when not.")};
    QCommandLineOption help{QStringLiteral("help"), QStringLiteral("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({printer,
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
                           onAlert,
                           wait,
                           noWait,
                           format,
                           bundleRoot,
                           checkDisplay,
                           help,
                           version});
    }
};

} // namespace corvana
