#include "reporthelpers.h"
#include "support/habtoolrun.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

HabtoolResult report(const QStringList &args)
{
    return habtool(QStringList{QStringLiteral("report")} + args);
}

void write(const QString &path, const QString &text)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text.toUtf8());
}

} // namespace

TEST(HabtoolReport, RendersATemplateOfTheProgramDirectoryWithFormulas)
{
    QTemporaryDir dir;
    const QString data = dir.filePath(QStringLiteral("blocos.tsv"));
    write(data, QStringLiteral("codgrupo\tdescri\r\n01\tBloco Jacarandá\r\n02\t\r\n"));
    const QString pdf = dir.filePath(QStringLiteral("blocos.pdf"));
    const HabtoolResult r = report({QStringLiteral("RBloc"), data, pdf, QStringLiteral("uEmpat=12"),
                               QStringLiteral("uNempat=Edifício Solar"), QStringLiteral("gClient=Tevora    ")});
    EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(r.out, pdf + QStringLiteral(": 1 página(s)\n"));
    EXPECT_TRUE(r.err.isEmpty() || !r.err.contains(QStringLiteral("Fórmula"))) << qPrintable(r.err);
    const QString text = pdfFileText(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("Relação de Blocos")));
    EXPECT_TRUE(text.contains(QStringLiteral("Condomínio 012 - Edifício Solar")));
    EXPECT_TRUE(text.contains(QStringLiteral("Bloco Jacarandá")));
    EXPECT_TRUE(text.contains(QStringLiteral("Total de blocos e subgrupos: 2")));

    // A field the data lacks is a note on standard error, not a failure.
    write(data, QStringLiteral("codigo\tdescri\n01\tBloco\n"));
    const HabtoolResult byPath = report({QStringLiteral(HAB_SOURCE_DIR "/reports/RBloc.rpt"), data, pdf});
    EXPECT_EQ(byPath.exitCode, 0);
    EXPECT_TRUE(byPath.err.contains(QStringLiteral("Campo inexistente nos dados: codgrupo")));
    EXPECT_EQ(byPath.err.count(QStringLiteral("codgrupo")), 1);
    EXPECT_TRUE(byPath.err.contains(QStringLiteral("Fórmula sem valor: uNempat")));
}

TEST(HabtoolReport, RefusesMissingOrBrokenFilesWithAClearMessage)
{
    QTemporaryDir dir;
    const QString data = dir.filePath(QStringLiteral("d.tsv"));
    const QString pdf = dir.filePath(QStringLiteral("o.pdf"));
    write(data, QStringLiteral("a\tb\n1\t2\n"));

    const HabtoolResult noTemplate = report({QStringLiteral("NaoExiste"), data, pdf});
    EXPECT_EQ(noTemplate.exitCode, 2);
    EXPECT_TRUE(noTemplate.err.contains(QStringLiteral("NaoExiste.rpt"))) << qPrintable(noTemplate.err);
    EXPECT_FALSE(QFile::exists(pdf));

    const QString broken = dir.filePath(QStringLiteral("Quebrado.rpt"));
    write(broken, QStringLiteral("band detail height=5\n  text 0 0 10 5 \"{a}\"\n  circle 1 1 1 1\nend\n"));
    const HabtoolResult bad = report({broken, data, pdf});
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_TRUE(bad.err.contains(QStringLiteral("Modelo de relatório Quebrado.rpt, linha 3: item desconhecido: \"circle\"\n")))
        << qPrintable(bad.err);

    const QString good = dir.filePath(QStringLiteral("Bom.rpt"));
    write(good, QStringLiteral("band detail height=5\n  text 0 0 10 5 \"{a}\"\nend\n"));
    write(data, QStringLiteral("a\tb\n1\t2\n3\n"));
    const HabtoolResult ragged = report({good, data, pdf});
    EXPECT_EQ(ragged.exitCode, 1);
    EXPECT_TRUE(ragged.err.contains(QStringLiteral("linha 3: 1 colunas, o cabeçalho tem 2"))) << qPrintable(ragged.err);

    const HabtoolResult noData = report({good, dir.filePath(QStringLiteral("sumiu.tsv")), pdf});
    EXPECT_EQ(noData.exitCode, 2);
    EXPECT_TRUE(noData.err.contains(QStringLiteral("sumiu.tsv")));

    EXPECT_EQ(report({good, data}).exitCode, 2);
    write(data, QStringLiteral("a\tb\n1\t2\n"));
    EXPECT_EQ(report({good, data, pdf, QStringLiteral("semigual")}).exitCode, 2);
    EXPECT_EQ(report({good, data, pdf}).exitCode, 0);
    EXPECT_TRUE(QFile::exists(pdf));
}
