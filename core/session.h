#pragma once
// The session: the values that live for the whole run and that every form
// reads and writes directly. A change of user replaces them; nothing clears them.
#include <QString>
#include <array>
#include <cstdint>

struct Session {
    QString usuario;            // "Administrador" or Usuarios.nome
    int16_t codUsuario = 0;
    QString impressora;         // "M", "J", "L", "S"
    int16_t empat = 0;          // active condominium
    QString nomeEmp;
    bool cfcon = false, cfadi = false, cfexc = false, cfalt = false, cfbai = false;
    bool bdcon = false, bdadi = false, bdexc = false, bdalt = false;

    QString nomeCliente;        // 40 characters, blank-padded
    QString adminLogin, adminSenha;

    QString sysPath;            // program directory with a trailing '/'
    QString dbSenha;            // database password: empty
    QString conSistema, conAtiva, arqAtivo;
    QString sql;                // the shared statement text; also Extenso's result
    QString linhaExt1, linhaExt2; // the amount in words on two lines (QuebraExtenso)

    bool confirmaSaida = true;
    bool cancelaGrava = false;
    bool temErros = false;
    std::array<std::array<QString, 3>, 20> listaErros{};
    int16_t qtErros = 0;

    // Search dialogs' parameters.
    QString valorPesq, tabPesq, tituloPesq, resultadoPesq;

    // Shared loop counters.
    int16_t i = 0, j = 0, k = 0;

    // The statement buffer: the monthly statement's lines for the slips.
    std::array<QString, 122> demonstrativo{};
    int16_t linhasDemonstrativo = 0;
    QString arqway;             // path of the chosen statement text file (frmGAbre_Arq)
};

extern Session session;

// The connection strings, built exactly as the system builds them.
inline const QString kConnectionPrefix =
    QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=false; Data Source=");
QString connectionString(const QString &sysPath, const QString &fileName, const QString &dbSenha);
