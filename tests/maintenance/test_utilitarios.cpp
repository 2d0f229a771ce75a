// The data utilities: a safety copy taken while a form holds the file open
// restores to the same data; a damaged copy is refused and changes nothing;
// the integrity check and the compaction.
#include "instalacao.h"

#include "core/datastore.h"
#include "core/dbfiles.h"
#include "core/session.h"
#include "maintenance/arquivos.h"
#include "maintenance/utilitarios.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray bytes(const QString &caminho)
{
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

struct Utilitarios : ::testing::Test {
    QTemporaryDir tmp;
    QString dir = tmp.path() + QStringLiteral("/sistema/");
    QString pasta = tmp.path() + QStringLiteral("/copias");
    ArquivoInstalacao con001;
    const QDate dia{2008, 3, 1};

    void SetUp() override
    {
        copiaPasta(instalacaoModelo(), dir);
        QDir().mkpath(pasta);
        session.dbSenha.clear();
        const QList<ArquivoInstalacao> arquivos = arquivosDaInstalacao(dir);
        ASSERT_EQ(arquivos.size(), 4);  // the system file and 1 to 3: 4 has no file
        EXPECT_EQ(arquivos[0].arquivo, QStringLiteral("Con000.mdb"));
        con001 = arquivos[1];
        ASSERT_EQ(con001.arquivo, QStringLiteral("Con001.mdb"));
    }
    QString copiaTruncada(qint64 tamanho)
    {
        const QString copia = copiaSeguranca(dir, con001, pasta, dia);
        QFile f(copia);
        EXPECT_TRUE(f.resize(tamanho));
        return copia;
    }
};

} // namespace

TEST_F(Utilitarios, ACopyTakenWhileAFormHoldsTheFileRestoresToEveryTableAsItWas)
{
    // A form's connection, with rows it wrote still in the journal.
    Connection form;
    form.Open(connectionString(dir, con001.arquivo, QString()));
    form.Execute(QStringLiteral("UPDATE Aptos SET nome = \"Nome mudado\" WHERE codigo = '010101'"));
    form.Execute(QStringLiteral("INSERT INTO TpAp (codigo, descri, rateio) VALUES ('09', \"Loja\", '1')"));
    const Retrato original = retrato(dir + con001.arquivo);

    const QString copia = copiaSeguranca(dir, con001, pasta, dia);
    EXPECT_EQ(QFileInfo(copia).fileName(),
              QStringLiteral("Con001 Condominio Residencial Jardim das Palmeiras 2008-03-01.mdb"));
    EXPECT_EQ(QFileInfo(copiaSeguranca(dir, con001, pasta, dia)).fileName(),
              QStringLiteral("Con001 Condominio Residencial Jardim das Palmeiras 2008-03-01 (2).mdb"));
    EXPECT_TRUE(problemaDaCopia(copia).isEmpty());
    EXPECT_EQ(retrato(copia), original);

    // Work goes on after the copy; then the copy is restored under the form.
    form.Execute(QStringLiteral("DELETE FROM Aptos WHERE codigo LIKE '01%'"));
    form.Execute(QStringLiteral("DELETE FROM Recibos"));
    const Retrato mudado = retrato(dir + con001.arquivo);
    ASSERT_NE(mudado, original);
    const QDateTime quando(dia, QTime(15, 30, 12));
    const QString guardado = restauraCopia(dir, con001, copia, quando);
    EXPECT_EQ(QFileInfo(guardado).fileName(), QStringLiteral("Con001 antes da restauracao 2008-03-01 15.30.12.bak"));
    EXPECT_EQ(retrato(dir + con001.arquivo), original);
    EXPECT_EQ(retrato(guardado), mudado);
    EXPECT_TRUE(checkDatabase(dir + con001.arquivo).isEmpty());
    // The form reads the restored file from its next statement on.
    Recordset rs = form.Execute(QStringLiteral("SELECT nome FROM Aptos WHERE codigo = '010101'"));
    ASSERT_FALSE(rs.eof());
    EXPECT_EQ(rs[QStringLiteral("nome")].text(), QStringLiteral("Nome mudado"));
    form.Close();
    EXPECT_EQ(retrato(dir + con001.arquivo), original);
}

TEST_F(Utilitarios, ADamagedCopyIsRefusedAndChangesNothing)
{
    const qint64 inteira = QFileInfo(copiaSeguranca(dir, con001, pasta, dia)).size();
    QDir(pasta).removeRecursively();
    QDir().mkpath(pasta);
    struct Caso {
        const char *nome;
        std::function<QString()> copia;
        const char *motivo;
    };
    const Caso casos[] = {
        {"cortada ao meio", [&] { return copiaTruncada(inteira / 2); }, "incompleto"},
        {"cortada numa página", [&] { return copiaTruncada(inteira - 4096); }, "incompleto"},
        {"vazia", [&] { return copiaTruncada(0); }, "vazio"},
        {"não é banco", [&] { return dir + QStringLiteral("Habitarium.ini"); }, "não é um banco de dados"},
    };
    const QByteArray antes = bytes(dir + con001.arquivo);
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.nome);
        const QString copia = c.copia();
        const QString problema = problemaDaCopia(copia);
        EXPECT_TRUE(problema.contains(QString::fromUtf8(c.motivo))) << problema.toStdString();
        EXPECT_THROW(restauraCopia(dir, con001, copia, QDateTime(dia, QTime(10, 0))), FalhaArquivo);
        EXPECT_EQ(bytes(dir + con001.arquivo), antes);
        QFile::remove(copia);
    }
    EXPECT_TRUE(QDir(dir).entryList({QStringLiteral("*antes da restauracao*")}).isEmpty());
}

TEST_F(Utilitarios, TheIntegrityCheckFindsADamagedPageAndTheCompactionKeepsTheData)
{
    for (const char *f : {"Con000.mdb", "Con001.mdb", "Con002.mdb", "Con003.mdb"})
        EXPECT_TRUE(checkDatabase(dir + QLatin1String(f)).isEmpty()) << f;

    // A page in the middle overwritten: the file has its size, its header, and is damaged.
    const QString copia = copiaSeguranca(dir, con001, pasta, dia);
    QFile f(copia);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    f.seek((f.size() / 4096 / 2) * 4096);
    f.write(QByteArray(4096, '\x5a'));
    f.close();
    EXPECT_FALSE(checkDatabase(copia).isEmpty());
    EXPECT_FALSE(problemaDaCopia(copia).isEmpty());

    // Rows deleted leave free pages; the compaction gives them back and keeps the rest.
    {
        Connection cn;
        cn.Open(connectionString(dir, QStringLiteral("Con002.mdb"), QString()));
        cn.Execute(QStringLiteral("DELETE FROM Mov08"));
    }
    const Retrato antes = retrato(dir + QStringLiteral("Con002.mdb"));
    qint64 de = 0, para = 0;
    compactaArquivo(dir + QStringLiteral("Con002.mdb"), de, para);
    EXPECT_LT(para, de);
    EXPECT_EQ(retrato(dir + QStringLiteral("Con002.mdb")), antes);
    EXPECT_TRUE(checkDatabase(dir + QStringLiteral("Con002.mdb")).isEmpty());
}
