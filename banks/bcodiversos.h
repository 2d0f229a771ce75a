#pragma once
// What frmBcoDiversos decides without a window: the species list of each
// bank, the wallet and save checks of the parameters tab, the statements of
// its saves, and the selection of receipts (WHERE, count, list).
#include <QString>
#include <QStringList>
#include <array>

// ---- Parameters tab ----

// The banks the form serves, as the occurrence test of the code field reads them.
inline const QString kBancosAtendidos = QStringLiteral("001 104 151 237 341 353 409 422");
// The banks whose slips come out of the remittance run (cmdGerarR); the others compute alone.
bool bancoComRemessa(const QString &banco);

// The species entries of a bank, in order, and the one shown when the kept code matches none.
QStringList especiesDoBanco(const QString &banco);
QString especiePadrao(const QString &banco);
// The code kept in RitauEsp for an entry: its left two characters, for 409 the letters at 4 and 5.
QString codigoEspecie(const QString &banco, const QString &entrada);
// The entry of a kept code; the default entry when none matches.
QString entradaDaEspecie(const QString &banco, const QString &codigo);

// The wallet test made as the wallet changes (on its left two characters,
// prompts included): the refusal's text, empty when the wallet is accepted.
QString recusaCarteira(const QString &banco, const QString &carteiraMascarada);

// The fields of the tab as the saves read them.
struct TelaBanco {
    QString banco, agencia, cedente, cedenteNome, convenio, cgc, cpf, carteira, nn, especie, i1, i2;
    std::array<QString, 6> instrucoes;
};

// The first test of the save that fails: its message and the control that
// gets the focus. Empty when the save may go on.
struct RecusaGravacao {
    QString mensagem;
    QString controle;
    bool recusado() const { return !mensagem.isEmpty(); }
};
RecusaGravacao validaGravacao(const TelaBanco &t);

// The two statements of the save, and the one the form sends as it closes.
QString sqlGravaParametrosBanco(const TelaBanco &t);
QString sqlGravaRBalRec(const QString &arqway, const QString &titulo);
QString sqlGravaInstrucoesAoSair(const TelaBanco &t);

// The default remittance file name: "SANTR" and the condominium's number filled to 3.
QString nomeRemessaPadrao(int empat);

// ---- Selection of receipts ----

enum class TipoLimite { Texto, Numero, Data };

struct CampoSelecao {
    QString titulo;   // as cmbCampo lists it
    QString coluna;   // Recibos' column
    TipoLimite tipo;
};
// The fields of cmbCampo in order; cmbOrdem lists all but the last.
const QList<CampoSelecao> &camposSelecao();

enum class Situacao { Abertos, Baixados, Todos };   // optA, optB, optT

struct FiltroSelecao {
    int campo = 0;            // index in camposSelecao()
    QString de, ate;          // the limits as typed ("dd/mm/yyyy" for dates)
    Situacao situacao = Situacao::Abertos;
    bool reemite = false;     // chkReemite: receipts that have a number too
    int ordem = 0;            // index in camposSelecao() for cmbOrdem
};

// " WHERE ... ORDER BY ...": the text every statement of the selection ends with.
QString whereSelecao(const FiltroSelecao &f);
QString sqlContagemSelecao(const QString &where);
// The grid's statement: Recibo, Emissão, Vencto, Recbto, Apto., Proprietário, Valor, Bco, Data Bco.
QString sqlListaSelecao(const QString &where);
// The statement the computation, the remittance run and the print run over.
QString sqlSelecao(const QString &where);

// ---- Statement text file (frmCriaTxt) ----

// The file's full name: the folder, the name, and ".txt" when the name has no extension.
QString caminhoTextoDemonstrativo(const QString &pasta, const QString &nome);
// Writes the statement buffer's lines, then each extra line that is not
// empty, one a line (UTF-8, CR LF). False when the file cannot be made.
bool escreveTextoDemonstrativo(const QString &caminho, const QStringList &linhasAdicionais);
