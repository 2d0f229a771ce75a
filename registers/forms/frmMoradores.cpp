#include "registers/forms/frmMoradores.h"

#include "core/anotaerro.h"
#include "registers/forms/codigopeloteclado.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "registers/vinculos.h"
#include "ui_frmMoradores.h"

#include <QComboBox>
#include <QLabel>

const Registro &frmMoradores::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmMoradores"),
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM Moradores Where codauto = {codigo}"),
        .existe = QStringLiteral("SELECT codauto FROM Moradores Where codauto = {codigo}"),
        .contagem = QStringLiteral("SELECT Count(codap) As I FROM Moradores"),
        .lista = QStringLiteral("SELECT * FROM Moradores ORDER BY nome"),
        .insere = QStringLiteral("INSERT INTO Moradores(nome,nascto,vinculo,codap) VALUES(\"{txtNome}\",{mskNascto},"
                                 "'{vinculo}','{codap}')"),
        .altera = QStringLiteral("Update Moradores Set nascto = {mskNascto},nome = \"{txtNome}\",codap = '{codap}',"
                                 "vinculo = '{vinculo}' Where codap = '{codapAntigo}' and nome = \"{nomeAntigo}\""),
        .apaga = QStringLiteral("DELETE FROM Moradores WHERE Nome = \"{nomeAntigo}\" and codap = '{codapAntigo}'"),
        .campos = {{QStringLiteral("txtNome"), QStringLiteral("nome")},
                   {QStringLiteral("mskCodap"), QStringLiteral("codap"), Tipo::Mascara},
                   {QStringLiteral("mskNascto"), QStringLiteral("nascto"), Tipo::Data}},
        .calculados = {QStringLiteral("codap"), QStringLiteral("vinculo"), QStringLiteral("nomeAntigo"),
                       QStringLiteral("codapAntigo")},
        .colunasGrade = {QStringLiteral("codauto"), QStringLiteral("nome"), QStringLiteral("codap"),
                         QStringLiteral("vinculo")},
        .titulosGrade = {QStringLiteral("Nº"), QStringLiteral("Nome"), QStringLiteral("Apto"), QStringLiteral("Vínculo")},
    };
    return r;
}

frmMoradores::frmMoradores(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmMoradores ui;
    ui.setupUi(this);
    mskCodap_ = ui.mskCodap;
    cmbVinculo_ = ui.cmbVinculo;
    lblApto_ = ui.lblApto;
    aoPerderFoco(ui.mskCodap, [this] { mskCodap_LostFocus(); });
    carrega();
    codigoPeloTeclado(*this, *ui.txtCodigo);
}

QString frmMoradores::unidade() const
{
    const QString puro = mskCodap_->textoPuro();
    return puro.isEmpty() ? QString() : ZeroEsq(puro, 6);
}

void frmMoradores::mskCodap_LostFocus()
{
    lblApto_->clear();
    const QString codap = unidade();
    if (codap.isEmpty())
        return;
    mskCodap_->setText(codap);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT codigo,nome FROM Aptos Where Codigo = '") + codap + u'\'');
    if (rs.eof())
        MsgBox(QStringLiteral("Apartamento Não Cadastrado !"), vbExclamation, QStringLiteral("Atenção..."));
    else
        lblApto_->setText(rs[QStringLiteral("nome")].text());
}

void frmMoradores::valoresExtras(QHash<QString, QString> &valores) const
{
    valores.insert(QStringLiteral("codap"), unidade());
    const int v = cmbVinculo_->currentIndex();
    valores.insert(QStringLiteral("vinculo"), v < 0 ? QString() : QString::number(v + 1));
    valores.insert(QStringLiteral("nomeAntigo"), nomeAntigo_);
    valores.insert(QStringLiteral("codapAntigo"), codapAntigo_);
}

void frmMoradores::carregaExtras(const Recordset &rs)
{
    nomeAntigo_ = rs[QStringLiteral("nome")].text();
    codapAntigo_ = rs[QStringLiteral("codap")].text();
    cmbVinculo_->setCurrentIndex(nomesVinculo().indexOf(nomeVinculo(rs[QStringLiteral("vinculo")].text())));
    Recordset ap = cn_.Execute(QStringLiteral("SELECT nome FROM Aptos Where Codigo = '") + codapAntigo_ + u'\'');
    lblApto_->setText(ap.eof() ? QString() : ap[QStringLiteral("nome")].text());
}

void frmMoradores::modoMudou(int modo)
{
    if (modo == 1 || modo == 3) {
        nomeAntigo_.clear();
        codapAntigo_.clear();
    }
}

void frmMoradores::validaCampos()
{
    const QHash<QString, QString> v = valores(codigoAtual());
    const QString nome = v.value(QStringLiteral("txtNome"));
    const QString codap = v.value(QStringLiteral("codap"));
    if (nome.trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O Campo Nome é Obrigatório !"));
    if (novo()) {
        Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Moradores Where Nome = \"") + nome
                                   + QStringLiteral("\" and codap = '") + codap + u'\'');
        if (!rs.eof())
            AnotaErro(kErroFatal, QStringLiteral("Morador Já Cadastrado !"));
    }
    if (codap.isEmpty()) {
        AnotaErro(kErroFatal, QStringLiteral("O Campo Apartamento é Obrigatório !"));
    } else {
        Recordset rs = cn_.Execute(QStringLiteral("SELECT codigo FROM Aptos Where Codigo = '") + codap + u'\'');
        if (rs.eof())
            AnotaErro(kErroFatal, QStringLiteral("Apartamento Não Cadastrado, Impossível Vincular Morador !"));
    }
    if (v.value(QStringLiteral("vinculo")).isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O Campo Vínculo é Obrigatório !"));
}

QStringList frmMoradores::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[3] = nomeVinculo(cells[3]);
    return cells;
}

void frmMoradores::aposGravar(const QString &codigo, bool eraNovo)
{
    if (!eraNovo)
        return;
    // The file numbers a new resident itself; when its number is not the one
    // typed, its row joins the grid here (the protocol adds the row of the
    // number typed).
    const QHash<QString, QString> v = valores(codigo);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Moradores Where Nome = \"") + v.value(QStringLiteral("txtNome"))
                               + QStringLiteral("\" and codap = '") + v.value(QStringLiteral("codap")) + u'\'');
    if (rs.eof() || rs[QStringLiteral("codauto")].text() == codigo)
        return;
    const QStringList cells = linhaGrade(rs);
    GradeModel *grade = tdbGrade_->modelo();
    grade->insere(grade->lugarOrdenado(cells), cells);
}
