#pragma once
// The slip print of frmBcoDiversos (cmdImprimir for one receipt, cmdImprTot
// for the selection): the rows of the slip data, the bank's formulas and the
// statement lines, ready for the report engine. No window: the form shows the
// result through MostraRelatorio (banks/forms/impressaoboletos.h).
//
// The parameters are formulas; the number as printed ("NossoNr": wallet, "/",
// nrbco) is the row's column "@NossoNr", so that each slip prints its own.
#include "core/datastore.h"

#include <QDate>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

// What the print reads from Parametros and the form.
struct ParametrosImpressao {
    QString banco;                    // txtRBanco
    QString cedente;                  // RitauCd
    QString agencia;                  // RitauAg
    QString conta;                    // RitauCc
    QString carteira;                 // RitauCart, bare ("06", "175", "")
    QString especie;                  // RitauEsp: the species code; empty prints "DM"
    QString convenio;                 // Rconvenio
    QDate dataProc;                   // tdbDatagR
    std::array<QString, 6> instrucoes; // txtInstru1 .. txtInstru6
    QString titulo;                   // txtTitulo: the preview's caption and Titu
};

// Reads "SELECT RitauCd,RitauAg,RitauCc,RitauCart,ritaunn,RitauEsp,Rconvenio
// FROM Parametros Where Codigo = 1" into the parameters (banco, dataProc,
// instrucoes and titulo are the form's and stay as given).
void leParametrosImpressao(Connection &con, ParametrosImpressao &p);

// The slip template of a bank ("BolRelItau.rpt" for 341); empty for a code
// that has none.
QString modeloBoleto(const QString &banco);

// The wallet as the print shows it: 341 the bare wallet filled to 3; 104
// "SR" for "00", else two blanks; 409 "Especial"; 353 "COBRANCA SIMPLES -
// CSR" (102) or "- ECR" (101); others filled to 2.
QString carteiraBoleto(const QString &banco, const QString &carteira);

// nrbco as printed: a number of exactly nine characters as 8 + "-" + 1.
QString nrbcoImpresso(const QString &nrbco);

// The bank's formulas: Cedente, AgConta, Carteira, EspecieDoc, Rconvenio
// (001), DataProc, Instru1..Instru6, Titu and the statement's.
QList<QPair<QString, QString>> formulasBoleto(const ParametrosImpressao &p);

// The statement on the slip: the session's buffer as formulas Linha000 ..
// Linha121, and as the rows (column "Linha") of the sub-report BalRecItau,
// up to its last line with text.
inline const QString kSubDemonstrativo = QStringLiteral("BalRecItau");
QList<QPair<QString, QString>> formulasDemonstrativo();
QStringList linhasDemonstrativo();

// The slip data columns, in order; "@NossoNr" last: each row its own NossoNr.
const QStringList &colunasBoleto();

// The list statement: the receipt and its payer. `filtro` is what follows the
// join: " WHERE recibos.situacao = 'A' AND recibos.codigo = '000123' ORDER BY
// recibos.codigo " for one receipt, the selection's WHERE for the run.
QString sqlBoletos(const QString &filtro);
QString filtroUmRecibo(const QString &codigo);

// A print ready for the engine.
struct ImpressaoBoletos {
    QString modelo;
    QString titulo;
    QStringList colunas;
    std::vector<QStringList> linhas;
    QList<QPair<QString, QString>> formulas;
    QStringList demonstrativo;   // the rows of the sub-report BalRecItau
};

// Runs sqlBoletos(filtro) and fills one row a receipt. No rows: empty `linhas`.
ImpressaoBoletos montaBoletos(Connection &con, const ParametrosImpressao &p, const QString &filtro);

// The receipts (NumDoc) whose stored bar code is not of 44 digits: the engine
// cannot draw it, and their slips print without bars. A bank's numbers of
// other lengths (a 422 counter under eight digits, a 237 account of six) make
// such codes.
QStringList recibosSemBarraValida(const ImpressaoBoletos &impressao);

enum class FimImpressaoBoleto {
    Pronto,          // `impressao` holds the slips
    SemNumero,       // "Você não especificou o Número do Recibo !"
    NaoLocalizado,   // "Recibo Não Localizado, verifique !"
    SemCodigoBarra,  // "Não foi criado o arquivo de remessa ou não foi calculado o código de Barra !"
    NaoAberto,       // "Recibo selecionado não existe ou já foi baixado !"
    SemSelecao,      // the focus goes to cmdSelRec
    SelecaoVazia,    // "Não há recibos na seleção estabelecida, selecione e clique [Selecionar] !"
    SemModelo,       // a bank code without a slip template: "Programado apenas para os Bancos ..."
};

// cmdImprimir: one receipt by txtNrRecibo. Shows the message of each stop.
FimImpressaoBoleto imprimeBoleto(Connection &con, const ParametrosImpressao &p, const QString &nrRecibo,
                                 ImpressaoBoletos &impressao);
// cmdImprTot: the receipts of the selection; `filtro` is the WHERE (with its
// ORDER BY) of the selection statement, empty when nothing was selected.
// Bank 151 reads the agency filled to 4 after this print (the form keeps it
// in ParametrosBanco::agenciaForm).
FimImpressaoBoleto imprimeSelecaoBoletos(Connection &con, const ParametrosImpressao &p, const QString &filtro,
                                         ImpressaoBoletos &impressao);
