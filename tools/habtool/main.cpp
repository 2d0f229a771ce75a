// habtool: the support console. Runs the system's own routines on database
// files without a window. See docs/habtool.md.
#include "tools/habtool/habtool.h"

#include "core/prompter.h"

#include <QGuiApplication>
#include <QLocale>
#include <map>
#include <string>

namespace {
struct Entry {
    const char *usage;
    const char *summary;
    HabCommand fn;
};
std::map<std::string, Entry> &registry()
{
    static std::map<std::string, Entry> commands;
    return commands;
}

int usage()
{
    err(QStringLiteral("uso: habtool COMANDO [argumentos]"));
    for (const auto &[name, e] : registry())
        err(QStringLiteral("  habtool %1 %2\n      %3").arg(QString::fromStdString(name), QString::fromUtf8(e.usage),
                                                       QString::fromUtf8(e.summary)));
    return 2;
}
} // namespace

bool registerCommand(const char *name, const char *usage, const char *summary, HabCommand fn)
{
    registry()[name] = Entry{usage, summary, fn};
    return true;
}

void out(const QString &line)
{
    const QByteArray b = line.toUtf8();
    std::fwrite(b.constData(), 1, size_t(b.size()), stdout);
    std::fputc('\n', stdout);
}

void err(const QString &line)
{
    const QByteArray b = line.toUtf8();
    std::fwrite(b.constData(), 1, size_t(b.size()), stderr);
    std::fputc('\n', stderr);
}

int main(int argc, char **argv)
{
    // Reports render through QtGui; the offscreen platform needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty())
        return usage();
    const auto it = registry().find(args.first().toStdString());
    if (it == registry().end())
        return usage();
    args.removeFirst();
    try {
        return it->second.fn(args);
    } catch (const ProgramEnded &) {
        return 1;
    } catch (const std::exception &e) {
        err(QStringLiteral("Erro Fatal: ") + QString::fromUtf8(e.what()));
        return 1;
    }
}
