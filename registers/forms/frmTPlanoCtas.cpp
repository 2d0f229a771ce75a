#include "registers/forms/frmTPlanoCtas.h"

#include "core/anotaerro.h"
#include "core/prompter.h"
#include "core/startup.h"
#include "core/widgets/campos.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "ui_frmTPlanoCtas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace {
const QString kMascara = QStringLiteral("##.###");
const QString kVazio = QStringLiteral("__.___");

// The combo's item whose first letter is the stored one; the blank entry otherwise.
void mostraLetra(QComboBox *combo, const QString &letra)
{
    int indice = 0;
    for (int i = 1; i < combo->count() && !letra.trimmed().isEmpty(); ++i)
        if (combo->itemText(i).left(1) == letra.trimmed().left(1))
            indice = i;
    combo->setCurrentIndex(indice);
}
}

const Registro &frmTPlanoCtas::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmTPlanoCtas"),
        .largura = 6,
        .busca = QStringLiteral("SELECT * FROM Plano Where codigo = '{codigo}'"),
        .existe = QStringLiteral("SELECT * FROM Plano Where Codigo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Plano"),
        .lista = QStringLiteral("SELECT * FROM Plano ORDER BY codigo"),
        .insere = QStringLiteral("INSERT INTO Plano(codigo,nome,tipo,classe,sintetico) VALUES('{codigo}',\"{txtnome}\","
                                 "\"{tipo}\",\"{classe}\",{chkSintetico})"),
        .altera = QStringLiteral("Update Plano Set nome = \"{txtnome}\",tipo = '{tipo}',classe = '{classe}',"
                                 "sintetico = {chkSintetico} Where codigo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE * FROM Plano WHERE codigo = '{codigo}'"),
        .campos = {{QStringLiteral("txtnome"), QStringLiteral("nome")},
                   {QStringLiteral("chkSintetico"), QStringLiteral("sintetico"), Tipo::Booleano}},
        .calculados = {QStringLiteral("tipo"), QStringLiteral("classe")},
        .obrigatorios = {{QStringLiteral("txtnome"), QStringLiteral("O campo nome é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("tipo"),
                         QStringLiteral("classe"), QStringLiteral("sintetico")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo"),
                         QStringLiteral("Classe"), QStringLiteral("Sint")},
        // The list comes in code order: the template prints rows as they come.
        .relatorio = {QStringLiteral("SELECT * FROM Plano ORDER BY codigo"),
                      {QStringLiteral("Codigo"), QStringLiteral("Nome"), QStringLiteral("Tipo"),
                       QStringLiteral("Classe"), QStringLiteral("Sintetico")},
                      QStringLiteral("Plano.rpt"), QStringLiteral("Plano de Contas")},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
        .abandono = QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."),
        .campoCodigo = QStringLiteral("mskcodigo"),
        .grade = QStringLiteral("tdbPlano"),
    };
    return r;
}

frmTPlanoCtas::frmTPlanoCtas(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmTPlanoCtas ui;
    ui.setupUi(this);
    txtnome_ = ui.txtnome;
    cmbTipo_ = ui.cmbTipo;
    cmbClasse_ = ui.cmbClasse;
    chkSintetico_ = ui.chkSintetico;
    carrega();
}

QString frmTPlanoCtas::normalizaCodigo(const QString &masked) const
{
    if (masked == kVazio || masked.isEmpty())
        return QString();
    // A synthetic account keeps only its group, "nn.", whatever was typed after it.
    return chkSintetico_->isChecked() ? masked.left(3) : masked;
}

void frmTPlanoCtas::valoresExtras(QHash<QString, QString> &valores) const
{
    valores.insert(QStringLiteral("tipo"), cmbTipo_->currentText().left(1));
    valores.insert(QStringLiteral("classe"), cmbClasse_->currentText().left(1));
}

void frmTPlanoCtas::validaCampos()
{
    // An analytic code must be whole: "01.___" with the box unticked is no code.
    if (!chkSintetico_->isChecked() && codigoAtual().contains(u'_'))
        AnotaErro(kErroFatal, registro().codigoInvalido);
    RecordForm::validaCampos();
}

QStringList frmTPlanoCtas::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[0] = cells[0].trimmed();
    cells[4] = rs[QStringLiteral("sintetico")].toBool() ? QStringLiteral("Sim") : QString();
    return cells;
}

void frmTPlanoCtas::poeCodigo(const QString &codigo)
{
    // A synthetic account is opened from the list in the mask of its group.
    mskCodigo_->setMascara(codigo.trimmed().size() == 3 ? QStringLiteral("##.") : kMascara);
    mskCodigo_->setText(codigo.trimmed());
}

void frmTPlanoCtas::valoresPadrao()
{
    cmbTipo_->setCurrentIndex(0);
    cmbClasse_->setCurrentIndex(0);
}

void frmTPlanoCtas::modoMudou(int modo)
{
    if (modo == 1 && mskCodigo_->mascara() != kMascara)
        reiniciaCodigo();
    // Imprimir and Sair stay enabled (as in every register): disabling the
    // button the Tab is heading for would send the focus on to the list, and
    // the list's first row would be loaded over the new account.
}

void frmTPlanoCtas::reiniciaCodigo()
{
    mskCodigo_->setMascara(kMascara);
    mskCodigo_->clear();
}

void frmTPlanoCtas::carregaConta(const Recordset &rs)
{
    txtnome_->setText(rs[QStringLiteral("nome")].text());
    mostraLetra(cmbTipo_, rs[QStringLiteral("tipo")].text());
    mostraLetra(cmbClasse_, rs[QStringLiteral("classe")].text());
    chkSintetico_->setChecked(rs[QStringLiteral("sintetico")].toBool());
}

void frmTPlanoCtas::mskCodigo_LostFocus()
{
    QString g = mskCodigo_->textoMascarado();
    if (g == kVazio)
        return;
    auto recusa = [this] {
        MsgBox(QStringLiteral("Código inválido: digite o grupo (01) para uma conta sintética ou o código completo (01.001) "
                              "para uma analítica; 00 não é aceito no grupo nem no final !"),
               vbExclamation, QStringLiteral("Atenção..."));
        reiniciaCodigo();
        focaCodigo();
    };
    if (g.right(3) == QLatin1String("___")) {
        // Only the group was typed: both of its digits are needed.
        if (g.left(1) == QLatin1String("_") || g.right(5) == QLatin1String("_.___")) {
            recusa();
            return;
        }
        g = g.left(4);
    } else if (g.left(2) == QLatin1String("00") || g.right(2) == QLatin1String("00") || g.contains(u'_')) {
        recusa();
        return;
    }
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Plano Where codigo = '") + g + QStringLiteral("'"));
    if (novo_ && rs.eof()) {
        mskCodigo_->setEnabled(false);
        return;
    }
    if (!novo_ && !rs.eof()) {
        HabilitaCampos(*fraDados_, true);
        carregaConta(rs);
        tdbGrade_->posiciona(tdbGrade_->modelo()->linhaDe(0, g.trimmed()));
        TrocaModo(2);
        txtnome_->setFocus();
        return;
    }
    // A group typed always comes here ("nn._" never equals a stored "nn."):
    // the save tells whether the account exists.
    if (MsgBox(QStringLiteral("Código Não Cadastrado, Incluir Novo ?"), vbYesNo + vbExclamation, QStringLiteral("Atenção..."))
        != vbYes) {
        reiniciaCodigo();
        focaCodigo();
        return;
    }
    HabilitaCampos(*fraDados_, true);
    LimpaCampos(*fraDados_);
    valoresPadrao();
    reiniciaCodigo();
    novo_ = true;
    TrocaModo(3);
    chkSintetico_->setChecked(g.size() != 6);
    mskCodigo_->setText(g.size() == 6 ? g : g + QStringLiteral("__"));
    txtnome_->setFocus();
}

void frmTPlanoCtas::cmdGravar_Click()
{
    if (!TemDireito(QStringLiteral("Cfalt"))) {
        MsgBox(QStringLiteral("Usuário não autorizado a alterar plano de contas !"), vbCritical, QStringLiteral("Atenção..."));
        cmdCancelar_Click();
        ponteiroNormal();
        return;
    }
    RecordForm::cmdGravar_Click();
}
