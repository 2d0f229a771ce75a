#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct ToolRun {
    int status = -1;
    QString out, err;
};

ToolRun habtool(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(HAB_BIN_DIR "/habtool"), QStringList{QStringLiteral("report")} + args);
    p.waitForFinished(120000);
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

void write(const QString &path, const QString &text)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text.toUtf8());
}

QString pdftotext(const QString &pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace

TEST(HabtoolReport, RendersATemplateOfTheProgramDirectoryWithFormulas)
{
    QTemporaryDir dir;
    const QString data = dir.filePath(QStringLiteral("blocos.tsv"));
    write(data, QStringLiteral("codgrupo\tdescri\r\n01\tBloco Jacarandá\r\n02\t\r\n"));
    const QString pdf = dir.filePath(QStringLiteral("blocos.pdf"));
    const ToolRun r = habtool({QStringLiteral("RBloc"), data, pdf, QStringLiteral("uEmpat=12"),
                               QStringLiteral("uNempat=Edifício Solar"), QStringLiteral("gClient=Tevora    ")});
    EXPECT_EQ(r.status, 0) << qPrintable(r.err);
    EXPECT_EQ(r.out, pdf + QStringLiteral(": 1 página(s)\n"));
    EXPECT_TRUE(r.err.isEmpty() || !r.err.contains(QStringLiteral("Fórmula"))) << qPrintable(r.err);
    const QString text = pdftotext(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("Relação de Blocos")));
    EXPECT_TRUE(text.contains(QStringLiteral("Condomínio 012 - Edifício Solar")));
    EXPECT_TRUE(text.contains(QStringLiteral("Bloco Jacarandá")));
    EXPECT_TRUE(text.contains(QStringLiteral("Total de blocos e subgrupos: 2")));

    // A field the data lacks is a note on standard error, not a failure.
    write(data, QStringLiteral("codigo\tdescri\n01\tBloco\n"));
    const ToolRun byPath = habtool({QStringLiteral(HAB_SOURCE_DIR "/reports/RBloc.rpt"), data, pdf});
    EXPECT_EQ(byPath.status, 0);
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

    const ToolRun noTemplate = habtool({QStringLiteral("NaoExiste"), data, pdf});
    EXPECT_EQ(noTemplate.status, 1);
    EXPECT_TRUE(noTemplate.err.contains(QStringLiteral("NaoExiste.rpt"))) << qPrintable(noTemplate.err);
    EXPECT_FALSE(QFile::exists(pdf));

    const QString broken = dir.filePath(QStringLiteral("Quebrado.rpt"));
    write(broken, QStringLiteral("band detail height=5\n  text 0 0 10 5 \"{a}\"\n  circle 1 1 1 1\nend\n"));
    const ToolRun bad = habtool({broken, data, pdf});
    EXPECT_EQ(bad.status, 1);
    EXPECT_TRUE(bad.err.contains(QStringLiteral("Modelo de relatório Quebrado.rpt, linha 3: item desconhecido: \"circle\"\n")))
        << qPrintable(bad.err);

    const QString good = dir.filePath(QStringLiteral("Bom.rpt"));
    write(good, QStringLiteral("band detail height=5\n  text 0 0 10 5 \"{a}\"\nend\n"));
    write(data, QStringLiteral("a\tb\n1\t2\n3\n"));
    const ToolRun ragged = habtool({good, data, pdf});
    EXPECT_EQ(ragged.status, 1);
    EXPECT_TRUE(ragged.err.contains(QStringLiteral("linha 3: 1 colunas, o cabeçalho tem 2"))) << qPrintable(ragged.err);

    const ToolRun noData = habtool({good, dir.filePath(QStringLiteral("sumiu.tsv")), pdf});
    EXPECT_EQ(noData.status, 1);
    EXPECT_TRUE(noData.err.contains(QStringLiteral("sumiu.tsv")));

    EXPECT_EQ(habtool({good, data}).status, 2);
    write(data, QStringLiteral("a\tb\n1\t2\n"));
    EXPECT_EQ(habtool({good, data, pdf, QStringLiteral("semigual")}).status, 2);
    EXPECT_EQ(habtool({good, data, pdf}).status, 0);
    EXPECT_TRUE(QFile::exists(pdf));
}
