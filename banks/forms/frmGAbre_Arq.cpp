#include "banks/forms/frmGAbre_Arq.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "ui_frmGAbre_Arq.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

frmGAbre_Arq::frmGAbre_Arq(QWidget *parent) : QDialog(parent), ui_(std::make_unique<Ui::frmGAbre_Arq>())
{
    ui_->setupUi(this);
    ui_->cmbTipoArq->addItem(QStringLiteral("Arquivos Texto (*.txt)"), QStringLiteral("*.txt"));
    ui_->cmbTipoArq->addItem(QStringLiteral("Todos os Arquivos (*.*)"), QStringLiteral("*"));
    // The drives are the mounted volumes; the root comes first.
    ui_->driDrive->addItem(QDir::rootPath());
    for (const QStorageInfo &v : QStorageInfo::mountedVolumes())
        if (v.rootPath() != QDir::rootPath() && ui_->driDrive->findText(v.rootPath()) < 0)
            ui_->driDrive->addItem(v.rootPath());

    connect(ui_->cmbTipoArq, &QComboBox::currentIndexChanged, this, [this] { mostraPasta(pasta_); });
    connect(ui_->driDrive, &QComboBox::activated, this, [this] { driDrive_Change(); });
    connect(ui_->dirPasta, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        mostraPasta(QDir::cleanPath(QDir(pasta_).filePath(item->text())));
    });
    connect(ui_->filArquivos, &QListWidget::currentTextChanged, ui_->txtArquivo, &QLineEdit::setText);
    connect(ui_->filArquivos, &QListWidget::itemActivated, this, [this] { cmdOk_Click(); });
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmGAbre_Arq::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
    aplicaTeclado(*this);

    // Opens where the last text was, else in the program directory.
    const QFileInfo ultimo(session.arqway);
    mostraPasta(!session.arqway.isEmpty() && ultimo.dir().exists() ? ultimo.absolutePath() : QDir(session.sysPath).absolutePath());
}

frmGAbre_Arq::~frmGAbre_Arq() = default;

void frmGAbre_Arq::mostraPasta(const QString &pasta)
{
    pasta_ = pasta;
    ui_->lblPasta->setText(pasta);
    ui_->dirPasta->clear();
    QDir dir(pasta);
    if (!dir.isRoot())
        ui_->dirPasta->addItem(QStringLiteral(".."));
    ui_->dirPasta->addItems(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    ui_->filArquivos->clear();
    const QString filtro = ui_->cmbTipoArq->currentData().toString();
    ui_->filArquivos->addItems(dir.entryList({filtro}, QDir::Files, QDir::Name | QDir::IgnoreCase));
    // The pattern of the text files takes ".TXT" as well.
    if (filtro == u"*.txt")
        for (const QString &f : dir.entryList({QStringLiteral("*.TXT")}, QDir::Files, QDir::Name))
            if (ui_->filArquivos->findItems(f, Qt::MatchExactly).isEmpty())
                ui_->filArquivos->addItem(f);
}

void frmGAbre_Arq::driDrive_Change()
{
    const QString raiz = ui_->driDrive->currentText();
    if (!QStorageInfo(raiz).isReady()) {
        MsgBox(QStringLiteral("Unidade Selecionada Não Possui Disquete"), vbExclamation, QStringLiteral("Atenção"));
        ui_->driDrive->setCurrentIndex(unidade_);
        return;
    }
    unidade_ = ui_->driDrive->currentIndex();
    mostraPasta(raiz);
}

void frmGAbre_Arq::cmdOk_Click()
{
    const QString nome = ui_->txtArquivo->text().trimmed();
    const QFileInfo arquivo(nome.isEmpty() ? QString() : QDir(pasta_).filePath(nome));
    if (nome.isEmpty() || !arquivo.isFile()) {
        MsgBox(QStringLiteral("Você não selecionou um arquivo válido, verifique !"), vbCritical,
               QStringLiteral("Erro Fatal"));
        return;
    }
    session.arqway = arquivo.absoluteFilePath();
    accept();
}
