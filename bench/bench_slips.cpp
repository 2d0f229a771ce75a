// 1,000 Itaú slips of a selection, each with 60 statement lines, filled from a
// condominium file and written to one PDF, beside the npm library
// gerar-boletos rendering 1,000 plain slips (bench/gerar_boletos.js), pair
// after pair, alternating (bench/paired.h). Also the same slips through
// QPdfWriter alone, the road the PDF took before.
//
// --perfil=N runs the project's side alone N times, for a profile.
// The library goes into the build tree: cmake --build build --target gerar_boletos_npm
// (npm install into build/bench-node). Without node or the library the
// comparison is skipped with a message.
#include "bench/paired.h"
#include "banks/bancos.h"
#include "banks/boletoimpressao.h"
#include "banks/calcbarra.h"
#include "banks/forms/impressaoboletos.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"
#include "reporting/pdfdireto.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {
constexpr int kSlips = 1000;

// A condominium file with 100 units and 1,000 open receipts computed for 341.
void montaArquivo(Connection &con)
{
    con.Execute(QStringLiteral("INSERT INTO Eventos (codigo, nome) VALUES ('001', \"Taxa de condomínio\")"));
    con.Execute(QStringLiteral("INSERT INTO Eventos (codigo, nome) VALUES ('002', \"Fundo de reserva\")"));
    for (int a = 0; a < 100; ++a)
        con.Execute(QStringLiteral("INSERT INTO Aptos (codigo, nome, cpfpro, enderecopro, numeropro, bairropro, ceppro, "
                                   "cidadepro, ufpro, codinterno) VALUES ('%1', \"José Antônio Ferreira %2\", "
                                   "'123.456.789-09', \"Rua das Acácias\", '120', \"Jardim\", '01001-000', "
                                   "\"São Paulo\", 'SP', 'A-%2')")
                        .arg(a + 101, 6, 10, QChar(u'0'))
                        .arg(a));
    ParametrosBanco p;
    p.banco = QStringLiteral("341");
    p.agencia = QStringLiteral("0742");
    p.cedente = QStringLiteral("04582-6");
    p.carteira = QStringLiteral("175");
    for (int i = 1; i <= kSlips; ++i) {
        const QString cod = QStringLiteral("%1").arg(i, 6, 10, QChar(u'0'));
        const Money valor = Money::fromUnits(qint64(40000 + i % 97) * 100 + 3700);
        const QDate vencto(2008, 3, 10);
        con.Execute(QStringLiteral("INSERT INTO Recibos (codigo, codap, nemis, demis, dvencto, situacao, vtotal, "
                                   "item0, comp0, refer0, valor0, item1, comp1, refer1, valor1) VALUES ('%1', '%2', "
                                   "\"1\", #02/25/2008#, #03/10/2008#, 'A', '%3', '001', \"\", 3, '%4', '002', "
                                   "\"10%\", 3, '%5')")
                        .arg(cod)
                        .arg(101 + i % 100, 6, 10, QChar(u'0'))
                        .arg(moneyText(valor).replace(u',', u'.'))
                        .arg(moneyText(valor - Money::fromInt(40)).replace(u',', u'.'))
                        .arg(QStringLiteral("40")));
        const Boleto b = calculaBoleto(p.banco, ReciboBanco{cod, valor, vencto}, p);
        con.Execute(updateRecibosBanco(QDate(2008, 3, 1), b, p.banco, cod));
    }
    con.Execute(QStringLiteral("UPDATE Parametros Set RBanco = '341', RitauAg = '0742', RitauCc = '04582-6', "
                               "RitauCart = '175', RitauCd = \"Condomínio Edifício Solar das Acácias\", "
                               "RitauEsp = '05' Where codigo = 1"));
}

ImpressaoBoletos selecao(Connection &con)
{
    ParametrosImpressao p;
    p.banco = QStringLiteral("341");
    p.dataProc = QDate(2008, 3, 1);
    p.titulo = QStringLiteral("Boletos de Março/2008");
    p.instrucoes[0] = QStringLiteral("Não receber após 30 dias do vencimento");
    p.instrucoes[1] = QStringLiteral("Após o vencimento, multa de 2% e juros de 1% ao mês");
    leParametrosImpressao(con, p);
    return montaBoletos(con, p, QStringLiteral(" WHERE recibos.situacao = 'A' ORDER BY Recibos.codigo"));
}

void demonstrativo()
{
    session.demonstrativo.fill(QString());
    session.demonstrativo[0] = QStringLiteral("DEMONSTRATIVO MENSAL REFERENTE Fevereiro/2008");
    for (int i = 1; i < 60; ++i)
        session.demonstrativo[size_t(i)] = QStringLiteral("%1%2%3")
                                               .arg(QStringLiteral("Despesa de manutenção %1").arg(i), -40)
                                               .arg(QStringLiteral("1.234,56"), 11)
                                               .arg(QStringLiteral("12.345,67"), 19);
}
} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    const QString sys = dir.path() + u'/';
    Connection::createFile(sys + QStringLiteral("Con001.mdb"));
    Connection con;
    con.Open(connectionString(sys, QStringLiteral("Con001.mdb"), QString()));
    montaArquivo(con);
    demonstrativo();
    const ReportTemplate tpl = loadTemplate(QStringLiteral(HAB_BIN_DIR "/BolRelItau.rpt"));
    const QString pdf = dir.filePath(QStringLiteral("boletos.pdf"));

    auto projeto = [&](bool direto) {
        return bench::seconds([&] {
            const ImpressaoBoletos imp = selecao(con);
            const ReportDocument doc = renderReport(tpl, dadosRelatorio(imp));
            if (doc.pageCount() != kSlips || !(direto ? writePdf(doc, pdf) : writePdfQt(doc, pdf)))
                std::fprintf(stderr, "boletos não gerados\n");
        });
    };
    projeto(true);
    std::printf("PDF: %d slips, %.2f KB a slip\n", kSlips, QFileInfo(pdf).size() / 1024.0 / kSlips);
    // --perfil=N: the project's side alone, N times (for perf record).
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--perfil=", 9) == 0) {
            for (int n = std::atoi(argv[i] + 9); n > 0; --n)
                std::printf("%.3f s\n", projeto(true));
            return 0;
        }

    const QString node = QStandardPaths::findExecutable(QStringLiteral("node"));
    const QString modules = QStringLiteral(HAB_BENCH_NODE_DIR "/node_modules");
    if (node.isEmpty() || !QFile::exists(modules + QStringLiteral("/gerar-boletos/package.json"))) {
        std::printf("comparison skipped: %s absent (cmake --build build --target gerar_boletos_npm)\n",
                    node.isEmpty() ? "node" : "gerar-boletos");
        return 0;
    }
    const QString script = QStringLiteral(HAB_SOURCE_DIR "/bench/gerar_boletos.js");
    const QString outLib = dir.filePath(QStringLiteral("gerar-boletos.pdf"));
    auto biblioteca = [&] {
        QProcess p;
        p.start(node, {script, modules, QString::number(kSlips), outLib});
        p.waitForFinished(-1);
        bool ok = false;
        const double s = QString::fromUtf8(p.readAllStandardOutput()).trimmed().toDouble(&ok);
        if (!ok)
            std::fprintf(stderr, "gerar-boletos: %s\n", p.readAllStandardError().constData());
        return ok ? s : 1e9;
    };
    const int pairs = bench::pairsWanted(argc, argv, 3);
    bench::run({{"1,000 slips, 60 statement lines, to one PDF", double(kSlips), " slips/s",
                 [&] { return projeto(true); }, biblioteca},
                {"the same through QPdfWriter alone", double(kSlips), " slips/s", [&] { return projeto(false); },
                 biblioteca}},
               pairs);
    std::printf("(raw: gerar-boletos, 1,000 plain slips; ratio above 1: the project is faster)\n");
    return 0;
}
