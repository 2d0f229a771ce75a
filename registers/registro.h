#pragma once
// A register described rather than programmed: its table and key, the
// statement texts with the places where the code and the fields' values go,
// the binding of each control to its column, the grid, the print and the
// required fields. The record-form protocol (registers/forms/recordform) reads
// it; a test reads it without a window.
//
// A statement text names a value between braces: "{codigo}" is the code as
// the register keeps it, "{txtDescri}" the value of the control of that name
// as its kind writes it (see Campo). The braces are the only markup: the
// quotes around a value belong to the statement and are written in it.
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

enum class Conexao {
    Ativa,    // the active condominium's file (conAtiva)
    Sistema,  // the system file (conSistema)
};

// How the code typed is kept.
enum class Chave {
    Texto,   // padded with zeros to its width ("1_" becomes "01")
    Numero,  // a number, without zeros in front ("007" becomes "7")
};

// How a control gives its value to a statement and takes a column's value.
enum class Tipo {
    Texto,     // a text field: its text
    Mascara,   // a masked field: its text with the prompts ("_____-___")
    Numero,    // a number field: the value with a decimal point
    Data,      // a date field: "#mm/dd/yyyy#", or the register's text for no date
    Booleano,  // a check box: True or False
    Opcao,     // a group of option buttons: the value of the one checked
    Combo,     // a combo: the text of the item chosen
};

struct Campo {
    QString controle;  // the control's name, also the name of its value in the statements
    QString coluna;    // the column it shows; empty when it is only written
    Tipo tipo = Tipo::Texto;
    // Opcao: the buttons' names and the value each stands for, in order; the
    // last value also stands when none is checked.
    QList<QPair<QString, QString>> opcoes = {};
    QString nulo = QStringLiteral("Null");  // Data: the text written for an empty date
};

struct Obrigatorio {
    QString controle;
    QString mensagem;  // "Erro Fatal" when the trimmed value is empty
};

struct RelatorioRegistro {
    QString sql;           // may name {chave}: the record's code, or what the register prints by
    QStringList colunas;   // the template's columns, in order
    QString modelo;        // "RBloc.rpt"
    QString titulo;        // the preview's title
};

struct PesquisaRegistro {
    QString dialogo, titulo, tabela;  // empty dialogo: the register has no search
    int largura = 0;                  // the chosen code padded with ZeroEsq to this width (0: as it comes)
};

struct Registro {
    QString form;                      // "frmBlocos"
    Conexao conexao = Conexao::Ativa;
    Chave chave = Chave::Texto;
    int largura = 0;                   // Chave::Texto: the code's width
    // The statements. busca, existe and apaga name {codigo}; insere and
    // altera name {codigo} and the fields.
    QString busca, existe, contagem, lista, insere, altera, apaga;
    QList<Campo> campos;
    QStringList calculados;            // values the form computes (valoresExtras), named in the statements
    QList<Obrigatorio> obrigatorios;
    QStringList colunasGrade;          // columns of the list shown in the grid; the first is the code
    QStringList titulosGrade;
    RelatorioRegistro relatorio;       // empty sql: the register prints nothing
    PesquisaRegistro pesquisa;
    QString codigoInvalido = QStringLiteral("Todo Registro deve ter um código válido");
    // A new record whose code the file has already.
    QString codigoRepetido = QStringLiteral("Código Já Cadastrado, Troque o Número !");
    QString abandono = QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele !");
    QString campoCodigo = {};                          // the code field when it is not mskCodigo/txtCodigo
    QString grade = QStringLiteral("tdbGrade");        // the grid's name
};

// The statement with every {name} replaced by its value. A name with no value
// throws RunFailure: a statement never goes out with a hole in it.
QString montaSql(const QString &modelo, const QHash<QString, QString> &valores);
// The names a statement text asks for, in order of first use.
QStringList nomesDoModelo(const QString &modelo);
// The code as the register keeps it, from the text of the code field with its
// prompts; empty when no code was typed.
QString normalizaChave(const Registro &registro, const QString &mascarado);
// The code of a two-level table (blocks and subgroups, makes and models) from
// the text of its "####" field: "01__" is the first level 01, "0101" its
// second level; anything else is no code.
QString normalizaGrupo(const QString &mascarado);
