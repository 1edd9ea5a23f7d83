// One change of an option with a PPD of 1,000 options and 2,000 constraints, with all that follows
// up to the painted page, against one bare cupsGetConflicts() on it.

#include "benchmarks/host/HostTimes.h"

#include <memory>
#include <stdexcept>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFile>
#include <QTabWidget>

#include "dialog/window/PrintWindow.h"
#include "dialog/window/pages/OptionsPage.h"
#include "platform/printcore/Ppd.h"
#include "tests/support/PpdBuilder.h"

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOptions = 1000;
constexpr int kConstraints = 2000;

QByteArray optionKeyword(int option)
{
    return "Option" + QByteArray::number(option);
}

QString writeLargePpd(const QString &folder)
{
    test::PpdBuilder ppd;
    for (int i = 0; i < kOptions; ++i)
        ppd.option(optionKeyword(i), "Option " + QByteArray::number(i), "A",
                   {{"A", "First"}, {"B", "Second"}, {"C", "Third"}});
    // Nothing that is marked collides; every option has constraints that must be looked at.
    for (int i = 0; i < kConstraints / 2; ++i)
        ppd.constraint(optionKeyword(i), "C", optionKeyword((i + 1) % kOptions), "C");
    const QString path = folder + u"/large.ppd"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ppd.text()) < 0)
        throw std::runtime_error("the large PPD cannot be written");
    return path;
}

struct PpdDeleter
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

} // namespace

void measureOptions(const QString &folder, const QString &absent)
{
    const QString path = writeLargePpd(folder);
    const std::shared_ptr<ppd_file_t> ppd(ppdOpenFile(QFile::encodeName(path).constData()),
                                          PpdDeleter());
    if (!ppd)
        throw std::runtime_error("the large PPD cannot be read");
    ppdMarkDefaults(ppd.get());
    const auto conflicts = [ppd](const char *choice) {
        cups_option_t *options = nullptr;
        const int count = cupsGetConflicts(ppd.get(), "Option500", choice, &options);
        cupsFreeOptions(count, options);
        return count;
    };
    conflicts("A"); // the first one also makes a table of the constraints
    ppdMarkOption(ppd.get(), "Option501", "C");
    if (conflicts("C") == 0)
        throw std::runtime_error("the constraints of the large PPD are not in force");
    ppdMarkOption(ppd.get(), "Option501", "A");
    measure(kConflicts, [conflicts] {
        int found = 0;
        const double time = timeOf([&] { found = conflicts("B"); });
        return found == 0 ? std::optional(time) : std::nullopt;
    });

    PrintRequest request = requestFor(absent, folder + u"/job.ps"_s);
    request.printers = {Printer{u"large"_s, u"large"_s, path}};
    const auto dialog = std::make_shared<PrintWindow>(request);
    dialog->show();
    auto *options = static_cast<OptionsPage *>(nullptr);
    if (!waitFor([&] { return (options = dialog->findChild<OptionsPage *>()) != nullptr; }))
        throw std::runtime_error("the large printer has no options");
    dialog->findChild<QTabWidget *>(u"pages"_s)->setCurrentWidget(options);
    settleDown();
    const auto view = options->findChild<QAbstractItemView *>(u"options"_s);
    measure(kChange, [dialog, options, view, second = false]() mutable {
        second = !second;
        const double time = timeOf([&] {
            Q_EMIT options->proposed(u"Option500"_s, second ? u"B"_s : u"A"_s);
            QCoreApplication::processEvents();
        });
        const QModelIndexList shown =
            view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, u"Option 500"_s, 1,
                                 Qt::MatchExactly | Qt::MatchRecursive);
        const QString value =
            shown.isEmpty() ? QString() : shown.constFirst().siblingAtColumn(1).data().toString();
        return value == (second ? u"Second"_s : u"First"_s) ? std::optional(time) : std::nullopt;
    });
}

} // namespace corvana::benchmarks
