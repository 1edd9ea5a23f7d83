#pragma once

#include <memory>

#include <cups/cups.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace corvana::test {

/// The attributes that a printer answers with, put together one by one. Copies are the same
/// printer.
class PrinterAttributes
{
public:
    PrinterAttributes();

    ipp_t *ipp() const { return m_ipp.get(); }

    PrinterAttributes &text(const char *name, const QByteArray &value);
    PrinterAttributes &keywords(const char *name, const QList<QByteArray> &values);
    /// Keywords may not have blanks, names may.
    PrinterAttributes &names(const char *name, const QList<QByteArray> &values);
    PrinterAttributes &formats(const QList<QByteArray> &values);
    PrinterAttributes &integers(const char *name, const QList<int> &values);
    PrinterAttributes &enums(const char *name, const QList<int> &values);
    PrinterAttributes &boolean(const char *name, bool value);
    PrinterAttributes &range(const char *name, int lower, int upper);
    /// Units: dots per inch.
    PrinterAttributes &resolutions(const char *name, const QList<int> &values);
    /// No value at all.
    PrinterAttributes &unknown(const char *name);
    /// Takes over collections.
    PrinterAttributes &collections(const char *name, const QList<ipp_t *> &values);

private:
    std::shared_ptr<ipp_t> m_ipp;
};

/// A "media-size" collection. Units: hundredths of a millimetre.
ipp_t *mediaSize(int width, int height);
ipp_t *mediaSizeRange(int minWidth, int maxWidth, int minHeight, int maxHeight);
/// A collection of "media-col-database", with the same margin on all sides.
ipp_t *media(int width, int height, int margin);
/// "media-col-default".
ipp_t *mediaDefault(int width, int height, const QByteArray &type, const QByteArray &source);

/// Printers as they are met.
struct Profile
{
    const char *name;
    PrinterAttributes (*attributes)();
};
QList<Profile> printerProfiles();
PrinterAttributes printerProfile(const char *name);

} // namespace corvana::test
