#include "reporting/template.h"

#include "reporthelpers.h"
#include "reporting/renderer.h"
#include "support/fixtures.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

// The message of the error a broken template raises, or "" when it parses.
QString errorOf(const QString &text)
{
    try {
        parseTemplate(text, QStringLiteral("Teste.rpt"));
    } catch (const TemplateError &e) {
        return e.message();
    }
    return QString();
}

} // namespace

TEST(ReportTemplate, ReadsPageBandsItemsAndReferences)
{
    const ReportTemplate t = parseTemplate(QStringLiteral(
        "# Teste\n"
        "page A4 landscape\n"
        "margins 12 10 8 6\n"
        "font \"DejaVu Serif\" 10\n"
        "band pageheader height=20\n"
        "  text 0 0 100 6 \"{@uNempat|trim} - Página {page} de {pages}\" size=12 bold align=center\n"
        "  line 0 19 277 19 width=0.5 dash\n"
        "end\n"
        "band groupheader bloco height=8\n"
        "  text 0 0 50 6 \"Bloco {bloco}\" family=\"DejaVu Sans Mono\"\n"
        "end\n"
        "band detail height=5 when {situacao} = \"A\"\n"
        "  text 0 0 30 5 \"{valor|#,###,##0.00}\" align=right valign=bottom box noclip\n"
        "  text 30 0 80 5 \"{obs}\" grow when {@Caixa} <> \"S\"\n"
        "  rect 0 0 110 5 fill=#eeeeee width=0\n"
        "  barcode 0 0 103 13 \"{barrabco}\"\n"
        "end\n"
        "band groupfooter bloco height=6\n"
        "  text 0 0 80 5 \"{count} aptos, {sum(valor)|#,##0.00} em {date}, {title}\"\n"
        "end\n"),
        QStringLiteral("Teste.rpt"));

    EXPECT_TRUE(t.landscape);
    EXPECT_DOUBLE_EQ(t.pageWidth(), 297.0);
    EXPECT_DOUBLE_EQ(t.pageHeight(), 210.0);
    EXPECT_DOUBLE_EQ(t.marginLeft, 12);
    EXPECT_DOUBLE_EQ(t.marginBottom, 6);
    EXPECT_EQ(t.font.family, QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(t.groups, QStringList{QStringLiteral("bloco")});

    const Band *ph = t.band(BandKind::PageHeader);
    ASSERT_NE(ph, nullptr);
    ASSERT_EQ(ph->items.size(), 2u);
    const Item &title = ph->items[0];
    EXPECT_TRUE(title.font.bold);
    EXPECT_DOUBLE_EQ(title.font.size, 12);
    EXPECT_EQ(title.font.family, QStringLiteral("DejaVu Serif"));   // the template's font
    ASSERT_EQ(title.parts.size(), 5u);
    EXPECT_EQ(title.parts[0].kind, TextPart::Formula);
    EXPECT_EQ(title.parts[0].name, QStringLiteral("uNempat"));
    EXPECT_EQ(title.parts[0].picture, QStringLiteral("trim"));
    EXPECT_EQ(title.parts[1].kind, TextPart::Literal);
    EXPECT_EQ(title.parts[1].name, QStringLiteral(" - Página "));
    EXPECT_EQ(title.parts[2].kind, TextPart::Page);
    EXPECT_EQ(title.parts[4].kind, TextPart::Pages);
    EXPECT_TRUE(ph->items[1].dash);
    EXPECT_DOUBLE_EQ(ph->items[1].pen, 0.5);

    const Band *gh = t.band(BandKind::GroupHeader, 0);
    ASSERT_NE(gh, nullptr);
    EXPECT_EQ(gh->items[0].font.family, QStringLiteral("DejaVu Sans Mono"));

    const Band *detail = t.band(BandKind::Detail);
    ASSERT_NE(detail, nullptr);
    EXPECT_EQ(detail->when.op, Condition::Equal);
    EXPECT_EQ(detail->when.left.name, QStringLiteral("situacao"));
    EXPECT_EQ(detail->when.right.name, QStringLiteral("A"));
    ASSERT_EQ(detail->items.size(), 4u);
    EXPECT_EQ(detail->items[0].parts[0].picture, QStringLiteral("#,###,##0.00"));
    EXPECT_EQ(detail->items[0].align, int(Qt::AlignRight | Qt::AlignBottom));
    EXPECT_TRUE(detail->items[0].box);
    EXPECT_FALSE(detail->items[0].clip);
    EXPECT_TRUE(detail->items[1].grow);
    EXPECT_EQ(detail->items[1].when.op, Condition::NotEqual);
    EXPECT_EQ(detail->items[1].when.left.kind, TextPart::Formula);
    EXPECT_EQ(detail->items[2].fill, QStringLiteral("#eeeeee"));
    EXPECT_EQ(detail->items[3].kind, Item::Barcode);

    const Band *gf = t.band(BandKind::GroupFooter, 0);
    ASSERT_NE(gf, nullptr);
    const auto &parts = gf->items[0].parts;
    EXPECT_EQ(parts[0].kind, TextPart::Count);
    EXPECT_EQ(parts[2].kind, TextPart::Sum);
    EXPECT_EQ(parts[2].name, QStringLiteral("valor"));
    EXPECT_EQ(parts[4].kind, TextPart::Date);
    EXPECT_EQ(parts[6].kind, TextPart::Title);
}

TEST(ReportTemplate, GroupsNestInTheOrderTheyFirstAppearAndLabelsTakeOnlyDetail)
{
    const ReportTemplate t = parseTemplate(QStringLiteral(
        "band groupheader conta height=5\nend\n"
        "band groupheader mes height=5\nend\n"
        "band detail height=5\nend\n"
        "band groupfooter mes height=5\nend\n"
        "band groupfooter conta height=5\nend\n"),
        QStringLiteral("G.rpt"));
    EXPECT_EQ(t.groups, (QStringList{QStringLiteral("conta"), QStringLiteral("mes")}));
    EXPECT_NE(t.band(BandKind::GroupFooter, 1), nullptr);

    const ReportTemplate l = parseTemplate(QStringLiteral(
        "page Letter\nlabels columns=2 width=101.6 height=25.4 hgap=4.8 order=down\n"
        "band detail\n text 2 2 90 5 \"{Nome}\"\nend\n"),
        QStringLiteral("E.rpt"));
    EXPECT_EQ(l.labels.columns, 2);
    EXPECT_DOUBLE_EQ(l.labels.height, 25.4);
    EXPECT_FALSE(l.labels.across);
    EXPECT_DOUBLE_EQ(l.pageWidth(), 215.9);

    const ReportTemplate custom = parseTemplate(QStringLiteral("page 100 50\nband detail height=5\nend\n"), QStringLiteral("C.rpt"));
    EXPECT_NEAR(custom.pageWidth(), 100, 0.01);
    EXPECT_NEAR(custom.pageHeight(), 50, 0.01);
}

TEST(ReportTemplate, ErrorsNameTheFileAndTheLine)
{
    EXPECT_EQ(errorOf(QStringLiteral("band detail height=5\n  circle 0 0 5 5\nend\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: item desconhecido: \"circle\""));
    EXPECT_EQ(errorOf(QStringLiteral("band detail height=5\n text 0 0 5 5 \"{v|#x#}\"\nend\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: formato inválido: \"#x#\""));
    EXPECT_EQ(errorOf(QStringLiteral("\nband detail height=5\n text 0 0 5 5 \"a\"\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: band sem \"end\""));
    EXPECT_EQ(errorOf(QStringLiteral("band detail height=5\nband pagefooter height=5\nend\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: band aberta na linha 1 sem \"end\""));

    // Each of these is refused with the line it is on.
    const QStringList broken = {
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"{campo\"\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"sem fim\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 sem_aspas\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 -5 5 \"x\"\nend\n"),
        QStringLiteral("band detail height=5\n text a 0 5 5 \"x\"\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"x\" align=justify\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"x\" when {a} ~ \"b\"\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"x\" sparkle\nend\n"),
        QStringLiteral("band detail height=5\n text 0 0 5 5 \"{}\"\nend\n"),
        QStringLiteral("band sidebar height=5\nend\n"),
        QStringLiteral("band detail height=-5\nend\n"),
        QStringLiteral("band detail height=5\n subreport 0 0 5 5 \"S\" columns=2\n text 0 0 5 1 \"x\"\n end\nend\n"),
        QStringLiteral("band detail height=5\n subreport 0 0 5 5 \"S\" height=1\n subreport 0 0 5 5 \"T\" height=1\n end\nend\n"),
    };
    for (const QString &text : broken) {
        const QString e = errorOf(text);
        EXPECT_TRUE(e.startsWith(QStringLiteral("Modelo de relatório Teste.rpt, linha "))) << qPrintable(text) << " -> " << qPrintable(e);
    }
    EXPECT_TRUE(errorOf(QStringLiteral("page A4\n")).contains(QStringLiteral("não tem band detail")));
    EXPECT_EQ(errorOf(QStringLiteral("page A4\nband detail\n text 0 0 5 5 \"x\"\nend\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: band detail sem height="));
    EXPECT_EQ(errorOf(QStringLiteral("page 100 50\nfont \"Sans\" 9\nmargins 10 30 10 30\nband detail height=5\nend\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 3: as margens não deixam espaço na página"));
    EXPECT_EQ(errorOf(QStringLiteral("band detail height=5\n subreport 0 0 5 5 \"S\" height=1\n text 0 0 5 1 \"x\"\n")),
              QStringLiteral("Modelo de relatório Teste.rpt, linha 2: subreport sem \"end\""));
    EXPECT_TRUE(errorOf(QStringLiteral("end\n")).contains(QStringLiteral("linha 1")));
    EXPECT_TRUE(errorOf(QStringLiteral("labels columns=2 width=10 height=10\nband pageheader height=5\nend\n"))
                    .contains(QStringLiteral("etiquetas")));
    EXPECT_TRUE(errorOf(QStringLiteral("band detail height=5\nend\nband detail height=5\nend\n")).contains(QStringLiteral("linha 3")));

    try {
        loadTemplate(QStringLiteral("/nao/existe/Sumiu.rpt"));
        ADD_FAILURE() << "a missing file must be refused";
    } catch (const TemplateError &e) {
        EXPECT_TRUE(e.message().contains(QStringLiteral("Sumiu.rpt")));
    }
}

TEST(ReportTemplate, TheExampleOfTheDocumentationParsesAndPrints)
{
    QFile f(sourceDir() + QStringLiteral("docs/report-templates.md"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString doc = QString::fromUtf8(f.readAll());
    const qsizetype section = doc.indexOf(QStringLiteral("## A complete example"));
    ASSERT_GE(section, 0);
    const qsizetype start = doc.indexOf(QStringLiteral("```\n"), section) + 4;
    const qsizetype end = doc.indexOf(QStringLiteral("```"), start);
    const ReportTemplate t = parseTemplate(doc.mid(start, end - start), QStringLiteral("Exemplo.rpt"));
    ReportData d;
    d.columns = {QStringLiteral("bloco"), QStringLiteral("codgrupo"), QStringLiteral("descri"), QStringLiteral("valor")};
    d.rows = {{"A", "01", "Garagem", "10,5"}, {"A", "02", "Salão", ""}, {"B", "03", "Portaria", "4"}};
    const ReportDocument r = renderReport(t, d);
    const QStringList texts = pageTexts(r, 0);
    EXPECT_TRUE(texts.contains(QStringLiteral("2 itens no bloco A: 10,50")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Total: 3 itens, R$ 14,50")));
}
