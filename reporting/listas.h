#pragma once
// The printed lists of the registers, the labels and the file listings: their
// statements, data columns and the rows they hand the report engine. The
// forms of reporting/forms only choose among these and print.
#include "core/datastore.h"
#include "reporting/imprime.h"

#include <QList>
#include <QString>
#include <QStringList>

// Bond of a resident ('1' "Proprietário(a)" ... '7' "Outros"); an unknown digit
// prints as it is.
QString textoVinculo(const QString &digito);
// Use of a unit ('1' "Uso Próprio" ... '4' "Vago").
QString textoUso(const QString &digito);
// The non-empty parts joined by ", ": "Rua das Flores, 120, apto 31".
QString juntaEndereco(const QStringList &partes);
// "(11) 5555-1234"; the number alone without an area code; empty without a number.
QString juntaFone(const QString &ddd, const QString &fone);

// ---- Register reports -------------------------------------------------------

struct OrdemRelatorio {
    QString opcao;   // option button
    QString sql;     // the whole statement of that order
};

struct RelatorioCadastro {
    QString titulo;       // caption of the form and title of the print
    QString modelo;       // template
    QList<OrdemRelatorio> ordens;
    QStringList colunas;  // data columns, in order
    RowFiller linha;      // empty: each column by name
    QString semLinhas;    // message when the statement finds nothing; empty: quiet
};

const RelatorioCadastro &relacaoAptos();       // frmRAptos
const RelatorioCadastro &relacaoEnderecos();   // frmRelEnd
const RelatorioCadastro &listagemTelefonica(); // frmRTelefonica
const RelatorioCadastro &relacaoMoradores();   // frmMoradPa
const RelatorioCadastro &cadastroVeiculos();   // frmVecPa

// ---- Labels -----------------------------------------------------------------

enum class ArquivoEtiqueta { Proprietarios, Inquilinos, PessoaJuridica, MaoDeObra };

// The statement of frmNormal for a file and an order (by name or by code).
QString sqlEtiquetas(ArquivoEtiqueta arquivo, bool porNome);
// Codigo, Nome, Endereço, Cidade, UF, CEP.
QStringList colunasEtiqueta();
// One label from a row of sqlEtiquetas (the columns are read by position, as
// each file names them its own way).
QStringList linhaEtiqueta(const Recordset &rs);

// Labels on a sheet of EtiqPadr.rpt / EtiqNor.rpt.
constexpr int etiquetasPorFolha = 20;

// The update of the standard label's row.
QString sqlPadrao(const QString &nvias, const QStringList &linhas);

// ---- File listings ----------------------------------------------------------

struct ModeloListagem {
    int numero;
    QString tabela;
    QString descricao;
};
const QList<ModeloListagem> &modelosListagem();
// "lrMod" + the number in two digits + ".rpt".
QString arquivoModelo(int numero);

struct CampoFiltro {
    QString texto;
    QString coluna;
    QChar tipo;  // 'S' text, 'N' number, 'D' date
};
const QList<CampoFiltro> &camposFiltroListagem();
// " ORDER BY column" of an order text of cmbOrdem; empty for an unknown text.
QString ordemListagem(const QString &texto);
// "WHERE " and the range clause of the field; from and to as typed (a date as
// "dd/mm/yyyy", a number with its decimal comma).
QString filtroListagem(const CampoFiltro &campo, const QString &de, const QString &ate);
// Every column of a unit's card, in the order of its INSERT, with tapto read
// by its description and tuso by its text; then the composed texts endpro,
// endinq (addresses) and fap, fpro, finq, fcoml (telephones).
QStringList colunasListagem();
// The rows of colunasListagem; looks the type up on con.
RowFiller linhaListagem(Connection &con);
