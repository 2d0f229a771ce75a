// Rendering to PDF: a 1,000-row listing grouped every 20 rows, and 1,000 bank
// slips of one page each with a bar code. Reports pages per second.
#include "reporting/renderer.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

const QString kListing = QStringLiteral(
    "page A4 portrait\nmargins 15 12 15 12\n"
    "band pageheader height=20\n"
    "  text 0 0 120 6 \"{@uNempat|trim}\" bold\n"
    "  text 120 0 60 6 \"Página {page} de {pages}\" align=right\n"
    "  line 0 18 180 18 width=0.3\n"
    "end\n"
    "band groupheader grupo height=7\n  text 0 0 180 7 \"Grupo {grupo}\" bold\nend\n"
    "band detail height=5.5\n"
    "  text 2 0 25 5.5 \"{codigo}\"\n"
    "  text 28 0 110 5.5 \"{nome}\"\n"
    "  text 140 0 38 5.5 \"{valor|#,###,##0.00}\" align=right\n"
    "end\n"
    "band groupfooter grupo height=7\n  text 0 0 178 6 \"Total do grupo: {count} - {sum(valor)|#,###,##0.00}\" align=right\nend\n"
    "band reportfooter height=8\n  text 0 0 178 6 \"Total geral: {sum(valor)|#,###,##0.00}\" align=right bold\nend\n"
    "band pagefooter height=8\n  text 0 2 180 5 \"Emitido em {date}\" size=7\nend\n");

ReportData listingData()
{
    ReportData d;
    d.columns = {QStringLiteral("grupo"), QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("valor")};
    for (int i = 0; i < 1000; ++i)
        d.rows.push_back({QString::number(i / 20), QStringLiteral("%1").arg(i, 6, 10, QChar(u'0')),
                          QStringLiteral("Condômino da unidade %1, São João").arg(i), QStringLiteral("%1,37").arg(400 + i % 97)});
    d.setFormula(QStringLiteral("uNempat"), QStringLiteral("Edifício Solar das Acácias"));
    d.title = QStringLiteral("Listagem");
    return d;
}

ReportData slipData()
{
    ReportData d;
    d.columns = {QStringLiteral("Vencto"), QStringLiteral("NumDoc"), QStringLiteral("lindigbco"), QStringLiteral("barrabco"),
                 QStringLiteral("Valor"), QStringLiteral("DataDoc"), QStringLiteral("Codap"), QStringLiteral("nome"),
                 QStringLiteral("item0"), QStringLiteral("evnt0"), QStringLiteral("refer0"), QStringLiteral("valor0")};
    for (int i = 0; i < 1000; ++i)
        d.rows.push_back({QStringLiteral("10/03/2008"), QStringLiteral("%1").arg(i, 6, 10, QChar(u'0')),
                          QStringLiteral("34191.09008 00000.123454 67100.000001 1 39000000055737"),
                          QStringLiteral("341913900000557371090000000123456710000%1").arg(i, 5, 10, QChar(u'0')),
                          QStringLiteral("557,37"), QStringLiteral("25/02/2008"), QStringLiteral("%1").arg(i, 6, 10, QChar(u'0')),
                          QStringLiteral("José Antônio Ferreira"), QStringLiteral("001"), QStringLiteral("Taxa de condomínio"),
                          QStringLiteral("03/2008"), QStringLiteral("557,37")});
    d.setFormula(QStringLiteral("Cedente"), QStringLiteral("Condomínio Edifício Solar das Acácias"));
    SubreportData &demonstrativo = d.subreports[QStringLiteral("BalRecItau")];
    demonstrativo.columns = {QStringLiteral("Linha")};
    for (int i = 0; i < 60; ++i)
        demonstrativo.rows.push_back({QStringLiteral("%1%2%3")
                                          .arg(QStringLiteral("Despesa de manutenção"), -40)
                                          .arg(QStringLiteral("1.234,56"), 11)
                                          .arg(QStringLiteral("12.345,67"), 19)});
    d.title = QStringLiteral("Boletos");
    return d;
}

void renderToPdf(benchmark::State &state, const ReportTemplate &tpl, const ReportData &data)
{
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("b.pdf"));
    int pages = 0;
    for (auto _ : state) {
        const ReportDocument doc = renderReport(tpl, data);
        if (!writePdf(doc, pdf)) {
            state.SkipWithError("PDF not written");
            return;
        }
        pages += doc.pageCount();
    }
    state.counters["pages"] = benchmark::Counter(pages / double(state.iterations()));
    state.counters["pages/s"] = benchmark::Counter(pages, benchmark::Counter::kIsRate);
}

void BM_Listing1000RowsGroupedBy20(benchmark::State &state)
{
    renderToPdf(state, parseTemplate(kListing, QStringLiteral("Listagem.rpt")), listingData());
}
BENCHMARK(BM_Listing1000RowsGroupedBy20)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Slips1000WithBarCode(benchmark::State &state)
{
    renderToPdf(state, loadTemplate(QStringLiteral(HAB_BIN_DIR "/BolRelItau.rpt")), slipData());
}
BENCHMARK(BM_Slips1000WithBarCode)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// One text item of N bytes, growing over as many pages as it needs, and the
// same text in a plain one-line item: the time should grow with N, not N².
void BM_LongTextItem(benchmark::State &state)
{
    const ReportTemplate tpl = parseTemplate(QStringLiteral("band detail height=10\n"
                                                            "  text 0 0 180 5 \"{texto}\" grow\n"
                                                            "  text 0 5 180 5 \"{texto}\"\n"
                                                            "end\n"),
                                             QStringLiteral("Longo.rpt"));
    ReportData d;
    d.columns = {QStringLiteral("texto")};
    QString texto;
    while (texto.size() < state.range(0))
        texto += QStringLiteral("Ata da assembleia de condôminos, item %1. ").arg(texto.size());
    d.rows.push_back({texto.left(qsizetype(state.range(0)))});
    renderToPdf(state, tpl, d);
}
BENCHMARK(BM_LongTextItem)->Arg(1 << 16)->Arg(1 << 18)->Arg(1 << 20)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
