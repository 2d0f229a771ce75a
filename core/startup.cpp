#include "core/startup.h"

#include "core/conversions.h"
#include "core/installation.h"
#include "core/prompter.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/version.h"

#include <QFile>

QString tituloInicial()
{
    return QStringLiteral("Habitarium - Versão ") + textoVersao() + QStringLiteral(" - {")
        + session.nomeCliente.trimmed() + QStringLiteral("}");
}

QString tituloAdministrador() { return tituloInicial() + QStringLiteral("  -  Usuário: Administrador"); }

QString tituloUsuario()
{
    return tituloInicial() + QStringLiteral("  -  Usuário: ") + session.usuario + QStringLiteral("  -  Empresa Ativa: ")
        + QString::number(session.empat) + QStringLiteral(" - ") + session.nomeEmp;
}

namespace {
// A right column read as a boolean. Null cannot be converted: the run fails,
// as it did when a row was written without its rights.
bool direito(const Recordset &rs, const QString &coluna)
{
    const Field &f = rs[coluna];
    if (f.isNull())
        throw RunFailure(QStringLiteral("Uso inválido de Nulo (Usuarios.") + coluna + QStringLiteral(")"));
    return f.toBool();
}
}

ResultadoLogin ConfereLogin(Connection &cn, const QString &login, const QString &senha)
{
    if (login == session.adminLogin && EmbaralhaAdm(senha) == session.adminSenha) {
        session.usuario = QStringLiteral("Administrador");
        return ResultadoLogin::Administrador;
    }
    if (login.isEmpty() || senha.isEmpty())
        return ResultadoLogin::CamposVazios;

    Recordset rs = cn.Execute(QStringLiteral("SELECT * FROM Usuarios WHERE nome = '") + login + QStringLiteral("'"));
    if (rs.eof() || EmbaralhaSenha(senha) != rs[QStringLiteral("senha")].text())
        return ResultadoLogin::Recusado;

    session.usuario = rs[QStringLiteral("nome")].text();
    session.codUsuario = int16_t(rs[QStringLiteral("codigo")].toInt());
    session.impressora = rs[QStringLiteral("impressora")].text();
    session.empat = int16_t(rs[QStringLiteral("empat")].toInt());
    session.cfcon = direito(rs, QStringLiteral("cfcon"));
    session.cfadi = direito(rs, QStringLiteral("cfadi"));
    session.cfexc = direito(rs, QStringLiteral("cfexc"));
    session.cfalt = direito(rs, QStringLiteral("cfalt"));
    session.cfbai = direito(rs, QStringLiteral("cfbai"));
    session.bdcon = direito(rs, QStringLiteral("bdcon"));
    session.bdadi = direito(rs, QStringLiteral("bdadi"));
    session.bdexc = direito(rs, QStringLiteral("bdexc"));
    session.bdalt = direito(rs, QStringLiteral("bdalt"));

    Recordset cli = cn.Execute(QStringLiteral("SELECT * FROM Clientes WHERE codigo = ") + QString::number(session.empat));
    if (!cli.eof() && !cli[QStringLiteral("nome")].text().trimmed().isEmpty())
        session.nomeEmp = cli[QStringLiteral("nome")].text();
    return ResultadoLogin::Usuario;
}

bool TemDireito(const QString &coluna)
{
    Connection cn;
    cn.ConnectionTimeout = 100;
    cn.Open(session.conSistema);
    Recordset rs = cn.Execute(QStringLiteral("SELECT ") + coluna + QStringLiteral(" FROM Usuarios WHERE nome = '")
                              + session.usuario + QStringLiteral("'"));
    const bool permitido = !rs.eof() && direito(rs, coluna);
    rs.Close();
    cn.Close();
    return permitido;
}

void AtivaCondominio(Connection &cnSistema, int16_t codigo, const QString &nome)
{
    session.nomeEmp = nome;
    session.empat = codigo;
    cnSistema.Execute(QStringLiteral("UPDATE Usuarios Set empat = ") + QString::number(session.empat)
                      + QStringLiteral(" Where nome = '") + session.usuario + QStringLiteral("'"));
    session.arqAtivo = nomeArquivoCondominio(session.empat);
    if (!QFile::exists(session.sysPath + session.arqAtivo)) {
        if (MsgBox(QStringLiteral("Não existe banco de dados para este cliente, criar ? "), vbYesNo,
                   QStringLiteral("Criar Arquivo..."))
            == vbYes)
            copiaMatriz(session.sysPath, session.arqAtivo);
        else
            EndProgram();
    }
    session.conAtiva = connectionString(session.sysPath, session.arqAtivo, session.dbSenha);
}

void PreparaArquivoAtivo(const std::function<void()> &escolherOutro)
{
    bool novo = false;
    session.arqAtivo = nomeArquivoCondominio(session.empat);
    if (!QFile::exists(session.sysPath + session.arqAtivo)) {
        const QString pergunta = QStringLiteral("Não Existe o Banco de Dados do Condomínio ")
            + QString::number(session.empat) + QStringLiteral(", Cria um Novo Vazio ? ");
        if (MsgBox(pergunta, vbYesNo, QStringLiteral("Criar Arquivo...")) == vbYes) {
            copiaMatriz(session.sysPath, session.arqAtivo);
            novo = true;
        } else if (MsgBox(QStringLiteral("Deseja Escolher Outro Condomínio ? Se não o sistema será encerrado..."),
                          vbYesNo, QStringLiteral("Atenção..."))
                   == vbYes) {
            escolherOutro();
        } else {
            EndProgram();
        }
    }
    session.conAtiva = connectionString(session.sysPath, session.arqAtivo, session.dbSenha);
    if (novo)
        semeiaPjuridica(session.conAtiva);
}
