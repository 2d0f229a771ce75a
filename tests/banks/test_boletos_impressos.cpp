// The printed slips of every bank: computed, filled from the file, laid out on
// the bank's template and written as PDF. Each page's bar code, rendered at
// 300 dpi, must read back (zbarimg) as the receipt's 44 digits, and the typed
// line, the number and the agency/account must be on the page as text.
#include "bankfile.h"
#include "banks/bancos.h"
#include "banks/calcbarra.h"
#include "banks/forms/impressaoboletos.h"
#include "core/session.h"
#include "support/scriptedprompter.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
struct Case {
    const char *banco, *agencia, *conta, *convenio, *carteira;
    const char *agConta;     // as printed
    const char *prefixoNr;   // what stands before the number
};

const std::vector<Case> kCases{
    {"001", "0123", "45678", "1234567", "18", "0123/45678", "18/"},
    {"104", "0123", "00012345", "870", "00", "0123.870.00012345-", "SR/"},
    {"151", "0456", "7654321", "05", "05", "0456/7654321", "05/"},
    {"237", "1234", "0012345", "", "06", "1234/0012345", "06/"},
    {"341", "0057", "12345-6", "", "175", "0057/12345-6", "175/"},
    {"353", "1234", "654321", "", "102", "1234/654321", ""},
    {"409", "0123", "1234567", "7654321", "", "0123/123456-7", ""},
    {"422", "0123", "1234567", "", "01", "00123/00123456-7", "01/"},
};

QString run(const QString &program, const QStringList &args)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(120000);
    return QString::fromUtf8(p.readAllStandardOutput());
}
} // namespace

TEST(BoletosImpressos, CadaBancoLeCodigoDeBarrasELinhaDigitavel)
{
    for (const char *tool : {"pdftoppm", "zbarimg", "pdftotext"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            GTEST_SKIP() << tool << " ausente (scripts/setup instala)";
    ScriptedPrompter prompts;
    for (const Case &c : kCases) {
        SCOPED_TRACE(c.banco);
        BankFile file;
        file.apto(QStringLiteral("000101"), QStringLiteral("Ana Maria"), QStringLiteral("___.___.___-__"));
        file.recibo(QStringLiteral("000123"), QStringLiteral("000101"), QStringLiteral("557.37"), QStringLiteral("03/10/2008"));
        file.recibo(QStringLiteral("000124"), QStringLiteral("000101"), QStringLiteral("1234.5"), QStringLiteral("04/10/2008"));
        file.parametros(QString::fromLatin1(c.banco), QString::fromLatin1(c.agencia), QString::fromLatin1(c.conta),
                        QString::fromLatin1(c.convenio), QString::fromLatin1(c.carteira));

        ParametrosBanco pb;
        pb.banco = QString::fromLatin1(c.banco);
        pb.agencia = QString::fromLatin1(c.agencia);
        pb.cedente = QString::fromLatin1(c.conta);
        pb.convenio = QString::fromLatin1(c.convenio);
        pb.carteira = textoMascaraCarteira(QString::fromLatin1(c.carteira));
        QStringList barras, nrs;
        int contador = 12345678;
        for (const char *cod : {"000123", "000124"}) {
            Recordset rs = file.con.Execute(QStringLiteral("SELECT * FROM recibos WHERE codigo = '%1'").arg(QLatin1String(cod)));
            const ReciboBanco r{rs["codigo"].text(), rs["vtotal"].toMoney(), rs["dvencto"].toDate()};
            const Boleto b = calculaBoleto(pb.banco, r, pb, contador++);
            ASSERT_TRUE(b.recusa.isEmpty());
            file.exec(updateRecibosBanco(QDate(2008, 3, 1), b, pb.banco, r.codigo));
            barras << b.barra;
            nrs << (b.nrbco.size() == 9 ? b.nrbco.left(8) + u'-' + b.nrbco.right(1) : b.nrbco);
        }

        ParametrosImpressao p;
        p.banco = pb.banco;
        p.dataProc = QDate(2008, 3, 1);
        p.titulo = QStringLiteral("Boletos de Março");
        p.instrucoes[0] = QStringLiteral("Não receber após 30 dias do vencimento");
        session.demonstrativo.fill(QString());
        session.demonstrativo[0] = QStringLiteral("DEMONSTRATIVO MENSAL REFERENTE Fevereiro/2008");
        leParametrosImpressao(file.con, p);
        ImpressaoBoletos imp;
        ASSERT_EQ(imprimeSelecaoBoletos(file.con, p, QStringLiteral(" WHERE recibos.situacao = 'A' ORDER BY Recibos.codigo"), imp),
                  FimImpressaoBoleto::Pronto);
        ASSERT_EQ(imp.linhas.size(), 2u);
        EXPECT_EQ(imp.linhas[0][imp.colunas.indexOf(QStringLiteral("ceppro"))], QStringLiteral("01001-000"));
        EXPECT_EQ(imp.linhas[0][imp.colunas.indexOf(QStringLiteral("cpfpro"))], QString());

        const ReportDocument doc = renderReport(loadTemplate(QStringLiteral(HAB_BIN_DIR "/") + imp.modelo), dadosRelatorio(imp));
        EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));
        ASSERT_EQ(doc.pageCount(), 2);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("b.pdf"));
        ASSERT_TRUE(writePdf(doc, pdf));
        run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("300"), QStringLiteral("-gray"), QStringLiteral("-png"), pdf,
                                         dir.filePath(QStringLiteral("p"))});
        const QStringList images = QDir(dir.path()).entryList({QStringLiteral("p*.png")}, QDir::Files, QDir::Name);
        ASSERT_EQ(images.size(), 2);
        for (int i = 0; i < 2; ++i) {
            const QString read = run(QStringLiteral("zbarimg"), {QStringLiteral("--raw"), QStringLiteral("-q"), dir.filePath(images[i])}).trimmed();
            EXPECT_EQ(read, barras[i]) << "página " << i + 1;
            const QString text = run(QStringLiteral("pdftotext"), {QStringLiteral("-f"), QString::number(i + 1), QStringLiteral("-l"),
                                                                   QString::number(i + 1), pdf, QStringLiteral("-")});
            Recordset rs = file.con.Execute(QStringLiteral("SELECT lindigbco FROM recibos WHERE codigo = '00012%1'").arg(3 + i));
            EXPECT_TRUE(text.contains(rs["lindigbco"].text())) << "página " << i + 1;
            EXPECT_TRUE(text.contains(QLatin1String(c.prefixoNr) + nrs[i])) << qPrintable(nrs[i]);
            EXPECT_TRUE(text.contains(QLatin1String(c.agConta))) << c.agConta;
            EXPECT_TRUE(text.contains(QStringLiteral("DEMONSTRATIVO MENSAL REFERENTE Fevereiro/2008")));
        }
    }
}

// Every stop of the single and the selection print, with its message.
TEST(BoletosImpressos, ParadasDaImpressao)
{
    BankFile file;
    file.apto(QStringLiteral("000101"), QStringLiteral("Ana"), QStringLiteral("123.456.789-09"));
    file.recibo(QStringLiteral("000001"), QStringLiteral("000101"), QStringLiteral("10"), QStringLiteral("03/10/2008"));
    file.recibo(QStringLiteral("000002"), QStringLiteral("000101"), QStringLiteral("10"), QStringLiteral("03/10/2008"), "B");
    file.exec(QStringLiteral("UPDATE Recibos SET barrabco = '1', nrbco = '1', lindigbco = '1' WHERE codigo = '000002'"));
    ParametrosImpressao p;
    p.banco = QStringLiteral("341");
    ImpressaoBoletos imp;
    struct Stop {
        QString numero, filtro;
        bool selecao;
        FimImpressaoBoleto fim;
        QString mensagem;
    };
    const std::vector<Stop> stops{
        {"", "", false, FimImpressaoBoleto::SemNumero, "Você não especificou o Número do Recibo !"},
        {"9", "", false, FimImpressaoBoleto::NaoLocalizado, "Recibo Não Localizado, verifique !"},
        {"1", "", false, FimImpressaoBoleto::SemCodigoBarra,
         "Não foi criado o arquivo de remessa ou não foi calculado o código de Barra !"},
        {"2", "", false, FimImpressaoBoleto::NaoAberto, "Recibo selecionado não existe ou já foi baixado !"},
        {"", "", true, FimImpressaoBoleto::SemSelecao,
         "Não há grupo de recibos selecionados, utilize o botão [Selecionar Recibos] !"},
        {"", " WHERE recibos.situacao = 'C'", true, FimImpressaoBoleto::SelecaoVazia,
         "Não há recibos na seleção estabelecida, selecione e clique [Selecionar] !"},
    };
    for (const Stop &s : stops) {
        ScriptedPrompter prompts;
        const FimImpressaoBoleto fim =
            s.selecao ? imprimeSelecaoBoletos(file.con, p, s.filtro, imp) : imprimeBoleto(file.con, p, s.numero, imp);
        EXPECT_EQ(fim, s.fim) << qPrintable(s.mensagem);
        ASSERT_EQ(prompts.calls.size(), 1u) << qPrintable(s.mensagem);
        EXPECT_EQ(prompts.calls[0].text, s.mensagem);
    }
}
