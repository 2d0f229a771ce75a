#include "maintenance/ajuste.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/dbfiles.h"
#include "core/session.h"
#include "core/transaction.h"
#include "core/version.h"
#include "maintenance/arquivos.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString kAjustec = QStringLiteral("Ajustec.mdb");
// The new system file is filled under this name, then renamed.
const QString kSistemaNovo = QStringLiteral("Ajustec.tmp");
const QString kSistema = QStringLiteral("Con000.mdb");
const QString kSegSistema = QStringLiteral("Seg1207.bak");
const QString kAjMatrix = QStringLiteral("AjMatrix.mdb");

// The adjustment's own connection strings: no password named.
QString conexaoAjuste(const QString &dir, const QString &arquivo)
{
    return kConnectionPrefix + dir + arquivo + QStringLiteral(";Jet OLEDB;");
}

void avisa(const AvisoAjuste &aviso, const QString &texto, int feitos, int total)
{
    if (aviso)
        aviso(PassoAjuste{texto, feitos, total});
}

// Fills the file the connection holds with the rows of the tables of the file
// origem: the copy's own rows of those tables (the template's starting rows)
// go first, since the old file brings its own. The file is a temporary one,
// thrown away on a failure: no transaction is needed (and the file named by
// IN can only be let go of outside one).
void carrega(Connection &cn, const QString &dir, const QString &origem, const QStringList &tabelas,
             const AvisoAjuste &aviso, int feitos, int total)
{
    for (const QString &tabela : tabelas)
        cn.Execute(QStringLiteral("DELETE * FROM ") + tabela);
    for (const QString &tabela : tabelas) {
        avisa(aviso, origem + QStringLiteral(": ") + tabela, feitos, total);
        session.sql = QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" SELECT * FROM ") + tabela
                      + QStringLiteral(" in '") + dir + origem + u'\'';
        cn.Execute(session.sql);
    }
}

// A file about to be renamed over must have no journal of a program that
// still holds it: the journal would be read as the new file's.
void confereSemDiario(const QString &dir, const QString &arquivo)
{
    if (temDiario(dir + arquivo))
        throw FalhaArquivo(kErroAcessoArquivo, arquivo,
                           QStringLiteral("O arquivo %1 está aberto por outro programa.").arg(arquivo));
}

// The system file: the old one's rows into a copy of Ajustec.mdb, which takes
// the name Ajustec.mdb again and then Con000.mdb; the old one stays as
// Seg1207.bak.
void ajustaSistema(const QString &dir, const AvisoAjuste &aviso)
{
    removeBanco(dir + kSistemaNovo);
    avisa(aviso, kSistema + QStringLiteral(": cópia de ") + kAjustec, 0, 0);
    copiaArquivo(dir + kAjustec, dir + kSistemaNovo);
    try {
        Connection cn;
        cn.ConnectionTimeout = 100;
        cn.Open(conexaoAjuste(dir, kSistemaNovo));
        carrega(cn, dir, kSistema, tabelasSistema(), aviso, 0, 0);
        cn.Close();
    } catch (const DatabaseError &e) {
        removeBanco(dir + kSistemaNovo);
        throw FalhaArquivo(kErroBanco, kSistema, e.message());
    }
    avisa(aviso, kSistema + QStringLiteral(": cópia de segurança ") + kSegSistema, 0, 0);
    copiaBancoSegura(dir + kSistema, dir + kSegSistema);
    confereSemDiario(dir, kSistema);
    substituiArquivo(dir + kSistemaNovo, dir + kAjustec);
    // The one step that makes the adjustment done: Ajustec.mdb goes and the
    // new system file is Con000.mdb at once.
    substituiArquivo(dir + kAjustec, dir + kSistema);
}

// One condominium (the steps are told in docs/maintenance.md).
void ajustaCondominio(const QString &dir, const QString &arquivo, const QString &seguranca, const AvisoAjuste &aviso,
                      int feitos, int total)
{
    removeBanco(dir + kAjMatrix);
    avisa(aviso, arquivo + QStringLiteral(": cópia de Matrix.mdb"), feitos, total);
    copiaArquivo(dir + QStringLiteral("Matrix.mdb"), dir + kAjMatrix);
    try {
        Connection cn;
        cn.ConnectionTimeout = 100;
        cn.Open(conexaoAjuste(dir, kAjMatrix));
        carrega(cn, dir, arquivo, tabelasAjuste(), aviso, feitos, total);
        cn.Close();
    } catch (const DatabaseError &e) {
        removeBanco(dir + kAjMatrix);
        throw FalhaArquivo(kErroBanco, arquivo, e.message());
    }
    avisa(aviso, arquivo + QStringLiteral(": cópia de segurança ") + seguranca, feitos, total);
    copiaBancoSegura(dir + arquivo, dir + seguranca);
    confereSemDiario(dir, arquivo);
    // The step that carries the condominium over: the new file takes the name at once.
    substituiArquivo(dir + kAjMatrix, dir + arquivo);
}

// The database files of dir that a connection of this program holds open.
QString arquivoEmUso(const QString &dir)
{
    const QStringList arquivos = QDir(dir).entryList({QStringLiteral("*.mdb"), QStringLiteral("*.MDB")}, QDir::Files);
    for (const QString &a : arquivos)
        if (databaseInUse(dir + a))
            return a;
    return QString();
}

} // namespace

QString textoAjusteVersao()
{
    return QStringLiteral("Ajuste Versão ") + QString::number(kVersaoMaior) + u'.' + QString::number(kVersaoMenor) + u'.'
           + QString::number(kRevisao) + QStringLiteral(" Janeiro/2008");
}

const QStringList &tabelasAjuste()
{
    static const QStringList tabelas = {
        QStringLiteral("Aptos"),      QStringLiteral("Conarec"),    QStringLiteral("Contas"),
        QStringLiteral("Eventos"),    QStringLiteral("Eventtot"),   QStringLiteral("Grupos"),
        QStringLiteral("Mobra"),      QStringLiteral("Moradores"),  QStringLiteral("Mov00"),
        QStringLiteral("Mov01"),      QStringLiteral("Mov02"),      QStringLiteral("Mov03"),
        QStringLiteral("Mov04"),      QStringLiteral("Mov05"),      QStringLiteral("Mov06"),
        QStringLiteral("Mov07"),      QStringLiteral("Mov08"),      QStringLiteral("MovEnt"),
        QStringLiteral("MovRazao"),   QStringLiteral("MovSai"),     QStringLiteral("Padrao"),
        QStringLiteral("Parametros"), QStringLiteral("Pjuridica"),  QStringLiteral("Plano"),
        QStringLiteral("RBalancete"), QStringLiteral("RBalREc"),    QStringLiteral("Recibos"),
        QStringLiteral("RPcontas"),   QStringLiteral("Saldini"),    QStringLiteral("TpAp"),
        QStringLiteral("Tpveiculos"), QStringLiteral("Usuarios"),   QStringLiteral("Veiculos"),
    };
    return tabelas;
}

const QStringList &tabelasSistema()
{
    static const QStringList tabelas = {QStringLiteral("Eventos"), QStringLiteral("Clientes"), QStringLiteral("Plano"),
                                        QStringLiteral("Usuarios")};
    return tabelas;
}

void AjustaCondominio(const QString &dir, const QString &arquivo, const QString &seguranca, const AvisoAjuste &aviso)
{
    ajustaCondominio(dir, arquivo, seguranca, aviso, 0, 0);
}

FimAjuste AjustaVersao(const QString &dir, const AvisoAjuste &aviso)
{
    FimAjuste fim;
    if (!QFileInfo::exists(dir + kAjustec)) {
        fim.situacao = FimAjuste::JaFeito;
        return fim;
    }
    fim.arquivo = arquivoEmUso(dir);
    if (!fim.arquivo.isEmpty()) {
        fim.situacao = FimAjuste::EmUso;
        return fim;
    }
    fim.arquivo = kSistema;
    try {
        ajustaSistema(dir, aviso);
        fim.ajustados << kSistema;

        QList<qint64> codigos;
        {
            Connection cn;
            cn.ConnectionTimeout = 100;
            cn.Open(connectionString(dir, kSistema, session.dbSenha));
            Recordset rs = cn.Execute(QStringLiteral("SELECT codigo FROM Clientes ORDER BY codigo"));
            while (!rs.eof()) {
                codigos << rs[QStringLiteral("codigo")].toInt();
                rs.moveNext();
            }
        }
        int feitos = 0;
        for (qint64 codigo : codigos) {
            // Code 0 names the system file itself, carried over above.
            if (codigo != 0) {
                const QString nnn = padZeros(QString::number(codigo), 3);
                const QString arquivo = QStringLiteral("Con") + nnn + QStringLiteral(".mdb");
                if (QFileInfo::exists(dir + arquivo)) {
                    fim.arquivo = arquivo;
                    ajustaCondominio(dir, arquivo, QStringLiteral("Seg11") + nnn + QStringLiteral(".bak"), aviso,
                                     feitos, int(codigos.size()));
                    fim.ajustados << arquivo;
                }
            }
            ++feitos;
            avisa(aviso, QString(), feitos, int(codigos.size()));
        }
    } catch (const FalhaArquivo &e) {
        fim.situacao = FimAjuste::Falhou;
        fim.numero = e.numero();
        fim.arquivo = e.arquivo().isEmpty() ? fim.arquivo : e.arquivo();
        fim.motivo = e.motivo();
        return fim;
    } catch (const DatabaseError &e) {
        fim.situacao = FimAjuste::Falhou;
        fim.numero = kErroBanco;
        fim.motivo = e.message();
        return fim;
    } catch (const RunFailure &e) {
        fim.situacao = FimAjuste::Falhou;
        fim.numero = kErroBanco;
        fim.motivo = e.message();
        return fim;
    }
    fim.arquivo.clear();
    return fim;
}

bool VinculaEmailCodigo(const QString &dir, const QString &codigo)
{
    try {
        Connection cn;
        cn.ConnectionTimeout = 100;
        cn.Open(conexaoAjuste(dir, QStringLiteral("Con") + padZeros(codigo, 3) + QStringLiteral(".mdb")));
        Transaction passo(cn);
        cn.Execute(QStringLiteral("UPDATE aptos SET codinterno = emailpro"));
        cn.Execute(QStringLiteral("UPDATE aptos SET emailpro = '' WHERE NOT codinterno = ''"));
        passo.commit();
        return true;
    } catch (const DatabaseError &) {
        return false;
    } catch (const RunFailure &) {
        return false;
    }
}
