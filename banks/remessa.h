#pragma once
// Remittance files of banks 341, 422 and 151: 400-character records ending in
// CR LF. The record builders are pure functions of their inputs; the run
// (cmdGerarR) computes each receipt's slip, writes its Recibos columns and its
// record, and closes the file with the trailer.
#include "banks/bancos.h"

#include <QDate>
#include <QString>
#include <cstdint>
#include <functional>

class Connection;
class Recordset;

inline const QString kCgcVazio = QStringLiteral("__.___.___/____-__");
inline const QString kCpfVazio = QStringLiteral("___.___.___-__");

// The parameters tab as the run reads it.
struct DadosRemessa {
    ParametrosBanco parametros;   // bank, agency, account (txtCodCedente), agreement, wallet
    QString cedenteNome;          // txtCedenteR
    QString cgc;                  // mskCgcR with its prompts
    QString cpf;                  // mskCpfR with its prompts
    QString especie;              // cmbEspecieR's text; its left 2 go to the file
    QString instrucao1, instrucao2;   // txtI1R, txtI2R
    QDate dataGeracao;            // tdbDatagR
};

// The payer of a slip, from the apartment: tenant or owner.
struct Sacado {
    QString cpf;          // the raw document the payer's number is built from
    bool cpfVazio = true; // the emptiness test (for a tenant of 422 made on another column)
    QString nome, endereco, numero, bairro, cep, cidade, uf;
};

// The tenant's columns when the option is set and tuso is "02"; the owner's otherwise.
// Bank 422 tests the tenant's emptiness on cpfinq and builds the number from cnpjinq.
Sacado sacadoDoApto(const Recordset &apto, bool inquilino, const QString &banco);

// ---- Pieces shared by the layouts ----
// Cut to the width, then blanks on the right.
QString campoTexto(const QString &text, int width);
QString valorRemessa(Money vtotal);                        // vtotal x 100 filled to 13
QString numeroSacado(const Sacado &s, int width);          // zeros when empty, else D filled
QString enderecoRemessa(const Sacado &s);                  // left 34 of street, ",", number: 40
QString cepRemessa(const QString &cep);                    // left 5 and right 3: 8
QString especieRemessa(const QString &especie);            // left 2 filled to 2
QString instrucaoRemessa(const QString &instrucao);        // numeric value filled to 2
QString empresaRemessa(const DadosRemessa &d);             // 101000+CPF or 102+CNPJ: 17
QString sequenciaRemessa(int16_t sequencia);               // 6 digits

// ---- Records (headers and details pass through the accent filter) ----
QString header341(const DadosRemessa &d, int16_t sequencia);
// Wallets 174 and 175 take the second layout.
QString detalhe341(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia);
QString header422(const DadosRemessa &d, int16_t sequencia);
QString detalhe422(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia);
QString header151(const DadosRemessa &d, int16_t sequencia);
QString detalhe151(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia);
QString trailerRemessa(int16_t sequencia);

// The wallet as the run keeps it for the bank: 341 filled to 3, 422 left 2
// filled to 2, 151 filled to 2. "XX" marks a receipt without a record.
QString carteiraRemessa(const ParametrosBanco &p);

// ---- The run ----
struct FormRemessa {
    DadosRemessa dados;
    QString nnr;                  // txtNnR: bank 422's last number; the run sets it
    QString nomeArquivo;          // txtNomeR
    QString pasta;                // dirPastaR
    bool inquilino = false;       // optInqRe
    QString selecao;              // the selection statement
    int16_t contagem = 0;
    int16_t sequencia = 0;
    Boleto trabalho;
    // The save of the parameters (cmdGravaR) that closes a finished run; may be empty.
    std::function<void()> gravaParametros;
    // Told after each receipt: receipts done and receipts of the selection (the form's bar).
    std::function<void(int feitos, int total)> progresso;

    QString caminhoArquivo() const;   // pasta, "/", nome, ".TXT"
};

enum class FimRemessa {
    Gerado,              // the closing message was shown
    BancoSemRemessa,
    FaltaSelecao,        // the form gives the focus to cmdSelRec
    FaltaNome,           // the form gives the focus to txtNomeR
    NaoSobregrava,       // the file exists and the answer was No
    SemRegistros,
    ContaItauLonga,      // 341 account of more than 6 digits: an empty file stays
    AptoNaoLocalizado,   // the file stays without a trailer
    Recusado,            // a receipt the rule refused (a value the bar code cannot hold): no trailer
};

FimRemessa cmdGerarR(Connection &con, FormRemessa &form);
