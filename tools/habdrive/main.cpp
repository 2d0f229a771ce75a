// habdrive PROGRAM_DIR SCRIPT [--pdf DIR] [--sql]: runs a script of a clerk's
// actions on the real program, offscreen, and prints what happened, one line
// an event (docs/habdrive.md). The program starts as it always does; the
// script's commands run wherever the program waits for a person: in each
// modal dialog while it is open (through the modal handler), and in the main
// window once the start is over.
#include "motorista.h"

#include "app/programa.h"
#include "core/datastore.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"

#include <QDir>
#include <QFile>
#include <cstdio>

namespace {
class PrompterDoRoteiro : public Prompter {
public:
    explicit PrompterDoRoteiro(Motorista &m) : m_(m) {}
    int msgBox(const QString &text, int style, const QString &title) override { return m_.msgBox(text, style, title); }
    QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) override
    {
        return m_.inputBox(prompt, title, defaultText);
    }

private:
    Motorista &m_;
};

// The offscreen platform's notes on what it cannot do (raise a window...) say
// nothing about the program; every other message goes to standard error.
void filtraMensagens(QtMsgType tipo, const QMessageLogContext &contexto, const QString &texto)
{
    if (texto.startsWith(QLatin1String("This plugin does not support")))
        return;
    std::fprintf(stderr, "%s\n", qFormatLogMessage(tipo, contexto, texto).toUtf8().constData());
}

[[noreturn]] void falha()
{
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(Motorista::kOutraFalha);
}

[[noreturn]] void uso()
{
    std::fprintf(stderr, "uso: habdrive PROGRAM_DIR SCRIPT [--pdf DIR] [--sql]\n");
    falha();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(filtraMensagens);
    Aplicacao app(argc, argv);
    preparaPrograma(app);

    QStringList posicionais;
    QString pdfDir;
    bool sql = false;
    const QStringList args = app.arguments();
    for (qsizetype i = 1; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--sql"))
            sql = true;
        else if (args[i] == QLatin1String("--pdf") && i + 1 < args.size())
            pdfDir = args[++i];
        else if (args[i].startsWith(QLatin1String("--")))
            uso();
        else
            posicionais << args[i];
    }
    if (posicionais.size() != 2)
        uso();

    QFile arquivo;
    const bool daEntrada = posicionais[1] == QLatin1String("-");
    const bool aberto = daEntrada ? arquivo.open(stdin, QIODevice::ReadOnly) : (arquivo.setFileName(posicionais[1]), arquivo.open(QIODevice::ReadOnly));
    if (!aberto) {
        std::fprintf(stderr, "habdrive: não foi possível ler %s\n", posicionais[1].toUtf8().constData());
        falha();
    }
    QList<Comando> comandos;
    int linhaErro = 0;
    QString motivo;
    if (!leRoteiro(QString::fromUtf8(arquivo.readAll()), comandos, linhaErro, motivo)) {
        std::printf("ERROR line %d: %s\n", linhaErro, motivo.toUtf8().constData());
        falha();
    }
    if (!pdfDir.isEmpty() && !QDir().mkpath(pdfDir)) {
        std::fprintf(stderr, "habdrive: não foi possível criar %s\n", pdfDir.toUtf8().constData());
        falha();
    }

    Motorista motorista(std::move(comandos), pdfDir);
    PrompterDoRoteiro prompter(motorista);
    setPrompter(&prompter);
    setModalHandler([&](QDialog &d) { motorista.abreDialogo(d); });
    setEscolhaHandler([&](EscolhaArquivo, const QString &, const QString &) { return motorista.escolheArquivo(); });
    setReportPrinter([&](std::shared_ptr<const ReportDocument> doc) {
        motorista.relatorio(doc, false);
        return true;
    });
    if (sql)
        setStatementListener([&](const QString &s) { motorista.escreve(QStringLiteral("SQL ") + umaLinha(s)); });

    mdiHabitarium mdi;
    motorista.mdi = &mdi;
    const bool iniciou = iniciaPrograma(mdi, QDir(posicionais[0]).absolutePath(),
                                        [&](std::shared_ptr<const ReportDocument> doc) { motorista.relatorio(doc, true); });
    if (!iniciou)
        motorista.sai(Motorista::kProgramaTerminou);
    mdi.showMaximized();
    mdi.activateWindow();
    QCoreApplication::processEvents();
    motorista.executa(nullptr, false);
    return Motorista::kOutraFalha;  // executa ends the run itself
}
