#include "reporting/renderer.h"

#include "reporthelpers.h"
#include "reporting/barcode.h"

#include <gtest/gtest.h>

namespace {

ReportTemplate tpl(const QString &text)
{
    return parseTemplate(text, QStringLiteral("Teste.rpt"));
}

const QString kListing = QStringLiteral(
    "page A4 portrait\n"
    "margins 15 10 15 10\n"
    "band reportheader height=12\n"
    "  text 0 0 180 10 \"Relação de Unidades – {title}\" size=14 bold align=center\n"
    "end\n"
    "band pageheader height=8\n"
    "  text 0 0 120 6 \"{@uNempat|trim}\"\n"
    "  text 120 0 60 6 \"Página {page} de {pages}\" align=right\n"
    "end\n"
    "band groupheader bloco height=7\n"
    "  text 0 0 100 6 \"Bloco {bloco}\" bold\n"
    "end\n"
    "band detail height=6\n"
    "  text 5 0 30 6 \"{codigo}\"\n"
    "  text 40 0 80 6 \"{nome}\"\n"
    "  text 130 0 40 6 \"{valor|#,###,##0.00}\" align=right\n"
    "end\n"
    "band groupfooter bloco height=7\n"
    "  text 0 0 170 6 \"Total do bloco {bloco}: {count} unidades, {sum(valor)|#,###,##0.00}\" align=right\n"
    "end\n"
    "band pagefooter height=8\n"
    "  text 0 2 180 6 \"Emitido em {date}\"\n"
    "end\n"
    "band reportfooter height=8\n"
    "  text 0 0 170 6 \"Total geral: {count} unidades, {sum(valor)|#,###,##0.00}\" align=right bold\n"
    "end\n");

ReportData listingData(int blocks, int perBlock)
{
    ReportData d;
    d.columns = {QStringLiteral("bloco"), QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("valor")};
    for (int b = 1; b <= blocks; ++b)
        for (int i = 1; i <= perBlock; ++i)
            d.rows.push_back({QString::number(b), QStringLiteral("%1%2").arg(b, 2, 10, QChar(u'0')).arg(i, 4, 10, QChar(u'0')),
                              QStringLiteral("Condômino %1-%2 Conceição").arg(b).arg(i), QStringLiteral("%1,5").arg(1000 + i)});
    d.setFormula(QStringLiteral("uNempat"), QStringLiteral("Edifício São João      "));
    d.title = QStringLiteral("Março");
    return d;
}

} // namespace

TEST(ReportRenderer, EveryBandKindGroupsSumsAndPageNumbersReachThePdf)
{
    const ReportDocument doc = renderReport(tpl(kListing), listingData(3, 30));
    ASSERT_GE(doc.pageCount(), 3);
    EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));

    const QStringList pages = pdfPages(doc);
    ASSERT_EQ(pages.size(), doc.pageCount());
    const QString n = QString::number(doc.pageCount());
    for (int i = 0; i < pages.size(); ++i) {
        EXPECT_TRUE(pages[i].contains(QStringLiteral("Página %1 de %2").arg(i + 1).arg(n))) << i;
        EXPECT_TRUE(pages[i].contains(QStringLiteral("Edifício São João"))) << i;
        EXPECT_TRUE(pages[i].contains(QStringLiteral("Emitido em "))) << i;
    }
    // The report header only once, on the first page, accents kept.
    EXPECT_TRUE(pages[0].contains(QStringLiteral("Relação de Unidades – Março")));
    EXPECT_FALSE(pages[1].contains(QStringLiteral("Relação de Unidades")));
    const QString all = pages.join(QString());
    EXPECT_TRUE(all.contains(QStringLiteral("Condômino 2-17 Conceição")));
    EXPECT_TRUE(all.contains(QStringLiteral("1.017,50")));
    // Each block: 30 units summing 30 * 1000 + 465 + 15.
    for (int b = 1; b <= 3; ++b) {
        EXPECT_TRUE(all.contains(QStringLiteral("Bloco %1").arg(b)));
        EXPECT_TRUE(all.contains(QStringLiteral("Total do bloco %1: 30 unidades, 30.480,00").arg(b))) << b;
    }
    EXPECT_TRUE(all.contains(QStringLiteral("Total geral: 90 unidades, 91.440,00")));
    EXPECT_LT(all.indexOf(QStringLiteral("Total do bloco 1")), all.indexOf(QStringLiteral("Bloco 2")));
    EXPECT_LT(all.indexOf(QStringLiteral("Total do bloco 3")), all.indexOf(QStringLiteral("Total geral")));

    // The page footer sits at the bottom of every page; no band crosses into it.
    for (int p = 0; p < doc.pageCount(); ++p) {
        double footerTop = 0, lowest = 0;
        for (const DrawOp &op : doc.pages[size_t(p)].ops) {
            if (op.text.startsWith(QStringLiteral("Emitido em")))
                footerTop = op.rect.top() - 2;
            else
                lowest = std::max(lowest, op.rect.bottom());
        }
        EXPECT_NEAR(footerTop, 297 - 10 - 8, 1e-6) << p;
        EXPECT_LE(lowest, footerTop + 1e-6) << p;
    }
}

TEST(ReportRenderer, NestedGroupsCloseInnerFirstAndHeadersKeepWithTheirDetail)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "page 100 60\nmargins 5 5 5 5\n"
        "band groupheader conta height=6\n text 0 0 90 5 \"C {conta}\"\nend\n"
        "band groupheader mes height=6\n text 0 0 90 5 \"M {mes}\"\nend\n"
        "band detail height=6\n text 0 0 90 5 \"D {valor}\"\nend\n"
        "band groupfooter mes height=6\n text 0 0 90 5 \"FM {mes} {sum(valor)}\"\nend\n"
        "band groupfooter conta height=6\n text 0 0 90 5 \"FC {conta} {sum(valor)} {count}\"\nend\n"));
    ReportData d;
    d.columns = {QStringLiteral("conta"), QStringLiteral("mes"), QStringLiteral("valor")};
    d.rows = {{"1", "01", "1"}, {"1", "01", "2"}, {"1", "02", "4"}, {"2", "02", "8"}};
    const ReportDocument doc = renderReport(t, d);
    QStringList seq;
    for (int p = 0; p < doc.pageCount(); ++p)
        seq << pageTexts(doc, p);
    EXPECT_EQ(seq, (QStringList{"C 1", "M 01", "D 1", "D 2", "FM 01 3", "M 02", "D 4", "FM 02 4", "FC 1 7 3",
                                "C 2", "M 02", "D 8", "FM 02 8", "FC 2 8 1"}));
    // 50 mm of body holds 8 bands of 6 mm: a header never ends a page alone.
    for (int p = 0; p < doc.pageCount(); ++p) {
        const QStringList t = pageTexts(doc, p);
        EXPECT_FALSE(t.last().startsWith(u'C') || t.last().startsWith(u'M')) << p << qPrintable(t.join(u','));
    }
}

TEST(ReportRenderer, PrintWhenOnItemsAndBands)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "band detail height=5 when {tipo} <> \"X\"\n"
        "  text 0 0 50 5 \"Caixa {codigo}\" when {@Caixa} = \"S\"\n"
        "  text 50 0 50 5 \"Banco {codigo}\" when {@Caixa} <> \"S\"\n"
        "  text 100 0 50 5 \"Obs {obs}\" when {obs}\n"
        "end\n"));
    ReportData d;
    d.columns = {QStringLiteral("codigo"), QStringLiteral("tipo"), QStringLiteral("obs")};
    d.rows = {{"1", "A", "nota"}, {"2", "X", "oculta"}, {"3", "B", " "}};
    d.formulas.insert(QStringLiteral("Caixa"), QStringLiteral("\"S\""));
    EXPECT_EQ(pageTexts(renderReport(t, d), 0), (QStringList{"Caixa 1", "Obs nota", "Caixa 3"}));
    d.setFormula(QStringLiteral("Caixa"), QStringLiteral("N"));
    EXPECT_EQ(pageTexts(renderReport(t, d), 0), (QStringList{"Banco 1", "Obs nota", "Banco 3"}));
}

TEST(ReportRenderer, MissingFieldsAndFormulasPrintEmptyAndAreNotedOnce)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "band detail height=5\n text 0 0 80 5 \"[{codigo}|{CODIGO}|{telefone}|{@Ausente}]\"\nend\n"));
    ReportData d;
    d.columns = {QStringLiteral("Codigo")};
    d.rows = {{"000101"}, {"000102"}, {"000103"}};
    const ReportDocument doc = renderReport(t, d);
    EXPECT_EQ(pageTexts(doc, 0), (QStringList{"[000101|000101||]", "[000102|000102||]", "[000103|000103||]"}));
    EXPECT_EQ(doc.log, (QStringList{QStringLiteral("Campo inexistente nos dados: telefone"),
                                    QStringLiteral("Fórmula sem valor: Ausente")}));
}

// A sub-report's rows go down its first column, then the next, on every
// page; fields are the sub-report's columns, formulas the print's; rows past
// the last column and a sub-report without data are noted.
TEST(ReportRenderer, SubreportRowsFlowDownThenAcrossOnEveryPage)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "band detail height=30\n"
        "  text 0 0 20 5 \"{codigo}\"\n"
        "  subreport 10 10 100 6 \"Extrato\" height=2 columns=2 when {codigo}\n"
        "    text 1 0 40 2 \"{Linha} {@Sufixo}\"\n"
        "  end\n"
        "end\n"));
    ReportData d;
    d.columns = {QStringLiteral("codigo")};
    d.rows = {{"1"}, {"2"}};
    d.setFormula(QStringLiteral("Sufixo"), QStringLiteral("!"));
    SubreportData &sub = d.subreports[QStringLiteral("Extrato")];
    sub.columns = {QStringLiteral("Linha")};
    for (const char *l : {"a", "b", "c", "d", "e", "f", "g"})
        sub.rows.push_back({QString::fromLatin1(l)});
    const ReportDocument doc = renderReport(t, d);
    EXPECT_EQ(pageTexts(doc, 0), (QStringList{"1", "a !", "b !", "c !", "d !", "e !", "f !", "2", "a !", "b !", "c !", "d !", "e !", "f !"}));
    const auto at = [&](const QString &text) {
        for (const DrawOp &op : doc.pages[0].ops)
            if (op.text == text)
                return op.rect.topLeft();
        return QPointF(-1, -1);
    };
    EXPECT_EQ(at(QStringLiteral("a !")), QPointF(10 + 10 + 1, 10 + 10));
    EXPECT_EQ(at(QStringLiteral("c !")), QPointF(10 + 10 + 1, 10 + 10 + 4));
    EXPECT_EQ(at(QStringLiteral("d !")), QPointF(10 + 60 + 1, 10 + 10));
    EXPECT_EQ(doc.log, QStringList{QStringLiteral("Sub-relatório Extrato: 1 linha(s) além do espaço")});

    d.subreports.clear();
    EXPECT_EQ(renderReport(t, d).log, QStringList{QStringLiteral("Sub-relatório sem dados: Extrato")});
}

TEST(ReportRenderer, GrowingTextWrapsAndPushesTheBand)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "band detail height=6\n"
        "  text 0 0 20 5 \"{codigo}\"\n"
        "  text 20 0 60 5 \"{obs}\" grow\n"
        "end\n"));
    ReportData d;
    d.columns = {QStringLiteral("codigo"), QStringLiteral("obs")};
    const QString longText = QStringLiteral("Vazamento na prumada do banheiro social, com infiltração na unidade de baixo; "
                                            "o síndico autorizou o reparo e o rateio entre os condôminos do bloco.");
    d.rows = {{"1", "curta"}, {"2", longText}, {"3", "curta"}};
    const ReportDocument doc = renderReport(t, d);
    const DrawOp *one = findText(doc, 0, "1"), *two = findText(doc, 0, "2"), *three = findText(doc, 0, "3");
    ASSERT_TRUE(one && two && three);
    EXPECT_DOUBLE_EQ(two->rect.top() - one->rect.top(), 6.0);
    const DrawOp *grown = findText(doc, 0, longText);
    ASSERT_TRUE(grown);
    EXPECT_GT(grown->rect.height(), 10.0);   // several lines at 9 points
    EXPECT_TRUE(grown->flags & Qt::TextWordWrap);
    EXPECT_NEAR(three->rect.top() - two->rect.top(), grown->rect.height() + 1.0, 1e-6);
    const QString text = pdfText(doc, false).simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("rateio entre os condôminos do bloco.")));
}

TEST(ReportRenderer, LabelsGoAcrossThenDownAndOnToNewSheets)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "page Letter\nmargins 3.95 12.7 3.95 12.7\n"
        "labels columns=2 width=101.6 height=25.4 hgap=4.8 vgap=0 order=across\n"
        "band detail height=25.4\n text 4 3 90 5 \"{Nome}\"\n text 4 8 90 5 \"{Cidade}\"\nend\n"));
    ReportData d;
    d.columns = {QStringLiteral("Nome"), QStringLiteral("Cidade")};
    for (int i = 1; i <= 45; ++i)
        d.rows.push_back({QStringLiteral("Etiqueta %1").arg(i), QStringLiteral("São Paulo")});
    const ReportDocument doc = renderReport(t, d);
    ASSERT_EQ(doc.pageCount(), 3);   // 20 a sheet
    EXPECT_EQ(pageTexts(doc, 0).size(), 40);
    EXPECT_EQ(pageTexts(doc, 2).size(), 10);
    const DrawOp *first = findText(doc, 0, "Etiqueta 1"), *second = findText(doc, 0, "Etiqueta 2"),
                 *third = findText(doc, 0, "Etiqueta 3"), *last = findText(doc, 0, "Etiqueta 20");
    ASSERT_TRUE(first && second && third && last);
    EXPECT_NEAR(first->rect.left(), 3.95 + 4, 1e-9);
    EXPECT_NEAR(second->rect.left() - first->rect.left(), 101.6 + 4.8, 1e-9);
    EXPECT_NEAR(second->rect.top(), first->rect.top(), 1e-9);
    EXPECT_NEAR(third->rect.top() - first->rect.top(), 25.4, 1e-9);
    EXPECT_NEAR(last->rect.top(), 12.7 + 9 * 25.4 + 3, 1e-9);
    ASSERT_TRUE(findText(doc, 1, "Etiqueta 21"));
    EXPECT_NEAR(findText(doc, 1, "Etiqueta 21")->rect.top(), first->rect.top(), 1e-9);
    EXPECT_TRUE(pdfPages(doc)[2].contains(QStringLiteral("Etiqueta 45")));

    // Down then across: the second label goes under the first.
    const ReportTemplate down = tpl(QStringLiteral(
        "page Letter\nmargins 3.95 12.7 3.95 12.7\n"
        "labels columns=2 width=101.6 height=25.4 hgap=4.8 order=down\n"
        "band detail height=25.4\n text 4 3 90 5 \"{Nome}\"\nend\n"));
    const ReportDocument dd = renderReport(down, d);
    EXPECT_NEAR(findText(dd, 0, "Etiqueta 2")->rect.top() - findText(dd, 0, "Etiqueta 1")->rect.top(), 25.4, 1e-9);
    EXPECT_NEAR(findText(dd, 0, "Etiqueta 11")->rect.left() - findText(dd, 0, "Etiqueta 1")->rect.left(), 106.4, 1e-9);
}

TEST(ReportRenderer, BarCodeDecodesBackIntoItsDigitsAndOddCountsAreRefused)
{
    const ReportTemplate t = tpl(QStringLiteral(
        "margins 10 10 10 10\n"
        "band detail height=40\n"
        "  text 0 0 100 5 \"{barrabco}\"\n"
        "  barcode 2.5 10 103 13 \"{barrabco}\"\n"
        "end\n"));
    ReportData d;
    d.columns = {QStringLiteral("barrabco")};
    const QString code = QStringLiteral("34191390000012345671090000010000123456789000");
    ASSERT_EQ(code.size(), 44);
    d.rows = {{code}, {code.left(43)}, {QStringLiteral("3419A")}, {QString()}};
    const ReportDocument doc = renderReport(t, d);

    int barsOps = 0;
    for (const DrawOp &op : doc.pages[0].ops)
        if (op.kind == DrawOp::Bars) {
            ++barsOps;
            ASSERT_FALSE(op.bars.empty());
            EXPECT_NEAR(op.bars.front().left(), 12.5, 1e-9);
            EXPECT_NEAR(op.bars.back().right(), 12.5 + 103, 1e-9);
            EXPECT_NEAR(op.bars.front().height(), 13, 1e-9);
        }
    EXPECT_EQ(barsOps, 1);
    ASSERT_EQ(doc.log.size(), 2);
    EXPECT_TRUE(doc.log[0].contains(QStringLiteral("número ímpar de dígitos (43)")));
    EXPECT_TRUE(doc.log[1].contains(QStringLiteral("não é dígito")));

    // Read the painted bars back from a row of pixels across the symbol.
    const double dotsPerMm = 24;
    const QImage img = pageImage(doc, 0, dotsPerMm);
    const int row = int((10 + 10 + 6.5) * dotsPerMm);
    EXPECT_EQ(decodeInterleaved2of5(img, row, int(10 * dotsPerMm), int(120 * dotsPerMm)), code);
    // The quiet zone stays blank.
    for (int x = int(10.1 * dotsPerMm); x < int(12.4 * dotsPerMm); ++x)
        ASSERT_GT(qGray(img.pixel(x, row)), 128) << x;

    // Straight from the encoder too, over another area.
    const BarcodeBars bars = interleaved2of5(QStringLiteral("0123456789"), QRectF(0, 0, 50, 10));
    EXPECT_TRUE(bars.error.isEmpty());
    EXPECT_EQ(bars.bars.size(), size_t(2 + 10 * 5 / 2 + 2));   // start, five bars a pair of digits, stop
    EXPECT_FALSE(interleaved2of5(QStringLiteral("123"), QRectF(0, 0, 50, 10)).error.isEmpty());
    EXPECT_TRUE(interleaved2of5(QStringLiteral("123"), QRectF(0, 0, 50, 10)).bars.empty());
}

TEST(ReportRenderer, PicturesFormatValues)
{
    EXPECT_EQ(formatValue(QStringLiteral("1234,5"), QStringLiteral("#,###,##0.00")), QStringLiteral("1.234,50"));
    EXPECT_EQ(formatValue(QStringLiteral("-0,5"), QStringLiteral("#,##0.00")), QStringLiteral("-0,50"));
    EXPECT_EQ(formatValue(QStringLiteral("7"), QStringLiteral("000")), QStringLiteral("007"));
    EXPECT_EQ(formatValue(QStringLiteral("05/03/2008"), QStringLiteral("mm/yyyy")), QStringLiteral("03/2008"));
    EXPECT_EQ(formatValue(QStringLiteral("não é data"), QStringLiteral("dd/mm/yyyy")), QStringLiteral("não é data"));
    EXPECT_EQ(formatValue(QStringLiteral("  Tevora  "), QStringLiteral("trim")), QStringLiteral("Tevora"));
    EXPECT_EQ(formatValue(QString(), QStringLiteral("#,##0.00")), QString());
    // A number the currency cannot hold prints as it came.
    EXPECT_EQ(formatValue(QStringLiteral("1e300"), QStringLiteral("#,##0.00")), QStringLiteral("1e300"));
}

TEST(ReportRenderer, ACellBeyondItsPictureDoesNotStopTheReport)
{
    ReportData d = listingData(1, 2);
    d.rows[0][3] = QStringLiteral("99999999999999999999");
    const ReportDocument doc = renderReport(tpl(kListing), d);
    const QStringList texts = pageTexts(doc);
    EXPECT_TRUE(texts.contains(QStringLiteral("99999999999999999999")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Total geral: 2 unidades, 1.002,50"))) << qPrintable(texts.join(u'\n'));
    EXPECT_FALSE(doc.log.isEmpty());
}

TEST(ReportRenderer, ALargeListingPaginatesWithoutTrouble)
{
    const ReportDocument doc = renderReport(tpl(kListing), listingData(500, 20));
    ASSERT_GT(doc.pageCount(), 200);
    const QStringList last = pageTexts(doc, doc.pageCount() - 1);
    EXPECT_TRUE(last.contains(QStringLiteral("Total geral: 10000 unidades, 10.110.000,00"))) << qPrintable(last.join(u'\n'));
    EXPECT_TRUE(last.contains(QStringLiteral("Página %1 de %2").arg(doc.pageCount()).arg(QChar(kPageCountMark))));
}
