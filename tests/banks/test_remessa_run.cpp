#include "banks/remessa.h"

#include "bankfile.h"
#include "core/conversions.h"
#include "remessafields.h"
#include "support/scriptedprompter.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {
FormRemessa form(BankFile &file, const QString &banco, const QString &conta, const QString &carteira)
{
    FormRemessa f;
    f.dados.parametros.banco = banco;
    f.dados.parametros.agencia = QStringLiteral("0057");
    f.dados.parametros.cedente = conta;
    f.dados.parametros.convenio = QStringLiteral("05");
    f.dados.parametros.carteira = carteira;
    f.dados.cedenteNome = QStringLiteral("Condomínio Solar");
    f.dados.cgc = kCgcVazio;
    f.dados.cpf = QStringLiteral("123.456.789-09");
    f.dados.especie = QStringLiteral("05 Recibo");
    f.dados.dataGeracao = QDate(2007, 1, 10);
    f.nomeArquivo = QStringLiteral("REMESSA");
    f.pasta = file.dir.path().chopped(1);
    f.selecao = QStringLiteral("SELECT Recibos.*,Aptos.nome FROM Recibos INNER JOIN Aptos ON Recibos.codap = "
                               "Aptos.Codigo WHERE situacao = 'A' ORDER BY Recibos.codigo");
    return f;
}

void receipts(BankFile &file, int n)
{
    file.apto(QStringLiteral("000101"), QStringLiteral("José Araújo"), QStringLiteral("987.654.321-00"));
    for (int i = 1; i <= n; ++i)
        file.recibo(ZeroEsq(QString::number(i), 6), QStringLiteral("000101"), QStringLiteral("150.25"),
                    QStringLiteral("01/15/2007"));
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<sem arquivo>");
}

QStringList records(const QByteArray &bytes)
{
    QStringList lines = QString::fromLatin1(bytes).split(QStringLiteral("\r\n"));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}
} // namespace

TEST(RemessaRun, Itau341WritesHeaderDetailsTrailerAndCounts)
{
    BankFile file;
    receipts(file, 7);
    ScriptedPrompter prompts;
    FormRemessa f = form(file, QStringLiteral("341"), QStringLiteral("12345-6"), QStringLiteral("109"));
    bool saved = false;
    f.gravaParametros = [&] { saved = true; };
    EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::Gerado);
    ASSERT_EQ(prompts.calls.size(), 1u);
    EXPECT_EQ(prompts.last().text, QStringLiteral("Arquivo Finalizado, foram gerados 0007 recibos neste arquivo !"));
    EXPECT_EQ(prompts.last().title, QStringLiteral("Finalização..."));
    EXPECT_TRUE(saved);

    const QByteArray bytes = readFile(f.caminhoArquivo());
    EXPECT_EQ(bytes.size(), 9 * 402);
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    const QStringList lines = records(bytes);
    ASSERT_EQ(lines.size(), 9);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(lines[i].size(), 400);
        EXPECT_EQ(lines[i].right(6), ZeroEsq(QString::number(i + 1), 6));
    }
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("01REMESSA01COBRANCA       0057")));
    expectFields(lines[1], {{38, 43, "000001"}, {235, 264, padded("Jose Araujo", 30)}});
    EXPECT_EQ(pos(lines[7], 38, 43), QStringLiteral("000007"));
    EXPECT_TRUE(lines[8].startsWith(QStringLiteral("9 ")));

    EXPECT_EQ(file.coluna("000001", "codbco"), QStringLiteral("341"));
    const Boleto b = Banco341(ReciboBanco{QStringLiteral("000001"), Money::fromDouble(150.25), QDate(2007, 1, 15)},
                              f.dados.parametros);
    EXPECT_EQ(file.coluna("000001", "nrbco"), b.nrbco);
    EXPECT_EQ(file.coluna("000001", "barrabco"), b.barra);
    EXPECT_EQ(file.coluna("000001", "demisbco"), QStringLiteral("10/01/2007"));
}

TEST(RemessaRun, ExistingFileQuestion)
{
    BankFile file;
    receipts(file, 2);
    FormRemessa f = form(file, QStringLiteral("341"), QStringLiteral("12345-6"), QStringLiteral("110"));
    {
        QFile old(f.caminhoArquivo());
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("arquivo anterior\r\n");
    }
    {
        ScriptedPrompter prompts;
        prompts.answer(vbNo, QStringLiteral("Já existe um arquivo com este nome no local indicado, sobregrava ?"));
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::NaoSobregrava);
        EXPECT_EQ(prompts.calls[0].title, QStringLiteral("Atenção"));
        EXPECT_EQ(prompts.calls[0].style & 7, vbYesNo);
    }
    EXPECT_EQ(readFile(f.caminhoArquivo()), QByteArray("arquivo anterior\r\n"));
    EXPECT_EQ(file.coluna("000001", "barrabco"), QString());
    {
        ScriptedPrompter prompts;
        prompts.answer(vbYes, QStringLiteral("sobregrava"));
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::Gerado);
    }
    const QStringList lines = records(readFile(f.caminhoArquivo()));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(pos(lines[1], 63, 70), zeros(8));   // wallet 110
}

TEST(RemessaRun, StopsAndMessages)
{
    BankFile file;
    receipts(file, 2);
    {
        ScriptedPrompter prompts;
        FormRemessa f = form(file, QStringLiteral("353"), QStringLiteral("123456"), QStringLiteral("102"));
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::BancoSemRemessa);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Este Banco não utiliza Remessa ! Utilize a opção Gerar Barras"));
        EXPECT_EQ(prompts.last().title, QStringLiteral("Atenção !!"));
    }
    {
        ScriptedPrompter prompts;
        FormRemessa f = form(file, QStringLiteral("341"), QStringLiteral("12345-6"), QStringLiteral("109"));
        f.nomeArquivo = QStringLiteral("  ");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::FaltaNome);
        EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Falta especificar o nome do arquivo remessa")));
        f.nomeArquivo = QStringLiteral("R");
        f.selecao.clear();
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::FaltaSelecao);
        f.selecao = QStringLiteral("SELECT * FROM Recibos WHERE codigo = 'x'");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::SemRegistros);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Não há registros para esta condição !"));
        EXPECT_FALSE(QFile::exists(f.caminhoArquivo()));
    }
    {
        // An Itaú account of 7 digits: the message, an empty file left behind.
        ScriptedPrompter prompts;
        FormRemessa f = form(file, QStringLiteral("341"), QStringLiteral("123456-7"), QStringLiteral("109"));
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::ContaItauLonga);
        EXPECT_EQ(prompts.last().text,
                  QStringLiteral("Conta Corrente do Banco Itaú tem até seis números, incluindo o dígito, confira !"));
        EXPECT_TRUE(QFile::exists(f.caminhoArquivo()));
        EXPECT_EQ(readFile(f.caminhoArquivo()).size(), 0);
    }
    EXPECT_EQ(file.coluna("000001", "barrabco"), QString());
    {
        // An apartment that is not there: the receipt's columns are written,
        // the file has no trailer.
        file.recibo(QStringLiteral("000003"), QStringLiteral("000999"), QStringLiteral("10"), QStringLiteral("01/15/2007"));
        ScriptedPrompter prompts;
        FormRemessa f = form(file, QStringLiteral("341"), QStringLiteral("12345-6"), QStringLiteral("109"));
        f.nomeArquivo = QStringLiteral("ORFAO");
        f.selecao = QStringLiteral("SELECT * FROM Recibos ORDER BY codigo");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::AptoNaoLocalizado);
        EXPECT_EQ(prompts.last().text, QStringLiteral("O Apto 000999  não foi localizado, geração abortada, verifique !"));
        EXPECT_EQ(prompts.last().title, QStringLiteral("Atenção !"));
        const QStringList lines = records(readFile(f.caminhoArquivo()));
        ASSERT_EQ(lines.size(), 3);
        EXPECT_FALSE(lines.last().startsWith(u'9'));
        EXPECT_EQ(file.coluna("000003", "codbco"), QStringLiteral("341"));
    }
}

TEST(RemessaRun, Safra422CounterAndWalletXX)
{
    BankFile file;
    receipts(file, 3);
    {
        ScriptedPrompter prompts;
        FormRemessa f = form(file, QStringLiteral("422"), QStringLiteral("123456-7"), QStringLiteral("XX_"));
        f.nnr = QStringLiteral("12345678");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::Gerado);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Arquivo Finalizado, foram gerados 0003 recibos neste arquivo !"));
        const QStringList lines = records(readFile(f.caminhoArquivo()));
        ASSERT_EQ(lines.size(), 2);   // header and trailer only
        EXPECT_EQ(lines[1].right(6), QStringLiteral("000002"));
        EXPECT_EQ(f.nnr, QStringLiteral("12345681"));
        EXPECT_EQ(file.ritauNn(), QStringLiteral("12345681"));
        EXPECT_EQ(file.coluna("000003", "nrbco").left(8), QStringLiteral("12345681"));
    }
    {
        // The next run starts one above the stored number.
        ScriptedPrompter prompts;
        prompts.answer(vbYes, QStringLiteral("sobregrava"));
        FormRemessa f = form(file, QStringLiteral("422"), QStringLiteral("123456-7"), QStringLiteral("01_"));
        f.nnr = file.ritauNn();
        f.selecao = QStringLiteral("SELECT * FROM Recibos WHERE codigo = '000001'");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::Gerado);
        const QStringList lines = records(readFile(f.caminhoArquivo()));
        ASSERT_EQ(lines.size(), 3);
        EXPECT_EQ(pos(lines[1], 63, 71), file.coluna("000001", "nrbco"));
        EXPECT_EQ(pos(lines[1], 63, 70), QStringLiteral("12345682"));
        EXPECT_EQ(file.ritauNn(), QStringLiteral("12345682"));
    }
}

TEST(RemessaRun, PayerTenantOrOwner)
{
    BankFile file;
    file.apto(QStringLiteral("000201"), QStringLiteral("Dono"), QStringLiteral("987.654.321-00"), QStringLiteral("02"));
    file.apto(QStringLiteral("000202"), QStringLiteral("Outro Dono"), kCpfVazio, QStringLiteral("2"));
    file.recibo(QStringLiteral("000001"), QStringLiteral("000201"), QStringLiteral("10"), QStringLiteral("01/15/2007"));
    file.recibo(QStringLiteral("000002"), QStringLiteral("000202"), QStringLiteral("10"), QStringLiteral("01/15/2007"));
    const auto detail = [&](const QString &banco, const QString &conta, bool inquilino, int row) {
        ScriptedPrompter prompts;
        if (QFile::exists(file.dir.path() + QStringLiteral("REMESSA.TXT")))
            prompts.answer(vbYes, QStringLiteral("sobregrava"));
        FormRemessa f = form(file, banco, conta, QStringLiteral("02_"));
        f.inquilino = inquilino;
        f.nnr = QStringLiteral("10000000");
        EXPECT_EQ(cmdGerarR(file.con, f), FimRemessa::Gerado);
        return records(readFile(f.caminhoArquivo())).value(row);
    };
    // 341: the tenant when the option is set and tuso is "02"; the owner otherwise.
    expectFields(detail(QStringLiteral("341"), QStringLiteral("12345-6"), true, 1),
                 {{221, 234, "00011122233344"}, {235, 264, padded("Inquilino de 000201", 30)},
                  {275, 314, padded("Av. Brasil,2000", 40)}});
    expectFields(detail(QStringLiteral("341"), QStringLiteral("12345-6"), true, 2),
                 {{221, 234, zeros(14)}, {235, 264, padded("Outro Dono", 30)}});
    expectFields(detail(QStringLiteral("341"), QStringLiteral("12345-6"), false, 1),
                 {{221, 234, "00098765432100"}, {235, 264, padded("Dono", 30)}});
    // 422: the tenant's CPF decides "02", the number comes from the tenant's CNPJ.
    expectFields(detail(QStringLiteral("422"), QStringLiteral("123456-7"), true, 1), {{219, 234, "0200012345678095"}});
    // 151: postal code split, suffix before prefix.
    const QString r = detail(QStringLiteral("151"), QStringLiteral("1234567"), false, 1);
    EXPECT_EQ(r.size(), 400);
    expectFields(r, {{272, 274, "000"}, {330, 334, "01001"}});
}
