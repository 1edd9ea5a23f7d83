#pragma once

#include <memory>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/printcore/Ppd.h"

namespace corvana::test {

/// The PPD file of a sample printer, as libcups reads it in one language.
/// Thread: libcups takes the language from the environment while it opens a file, so no other
/// thread may open one meanwhile.
class SamplePpd
{
public:
    /// `printer`: file name without its extension. `language`: a locale such as "ja_JP"; it needs
    /// not be installed.
    /// Errors: `isOpen` answers false.
    SamplePpd(const QString &printer, const QByteArray &language);

    bool isOpen() const { return m_ppd != nullptr; }
    /// Ownership: the file keeps it.
    ppd_file_t *ppd() const { return m_ppd.get(); }
    int modelNumber() const { return m_ppd->model_number; }

    bool has(const char *keyword) const;
    bool offers(const char *keyword, const char *choice) const;
    /// The keywords of an option's choices, without the one that libcups adds for custom values;
    /// none for an option that does not exist.
    QStringList choices(const char *keyword) const;
    QString defaultChoice(const char *keyword) const;
    /// The text of a choice, or nothing.
    QString text(const char *keyword, const char *choice) const;

    /// The whole-number parameter of an option, or null.
    const ppd_cparam_t *number(const char *keyword, const char *parameter) const;
    bool takesNumbers(const char *keyword) const
    {
        return ppdHasCustomOption(ppd(), latin1(keyword));
    }
    /// Whether one of the choices of `option` cannot be had together with one of those of `other`.
    bool conflict(const char *option, const QStringList &choices, const char *other) const;
    bool hasAttribute(const char *name) const { return ppdFindAttr(ppd(), name, nullptr); }

    /// Every option outside "PageRegion", which repeats "PageSize".
    QList<const ppd_option_t *> options() const;

private:
    static QString latin1(const char *text) { return QString::fromLatin1(text); }

    struct Close
    {
        void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
    };
    std::unique_ptr<ppd_file_t, Close> m_ppd;
};

/// Folder of the PPD files.
QString samplePpdFolder();

/// The sample printers, by file name without its extension, sorted.
QStringList samplePrinterNames();

} // namespace corvana::test
