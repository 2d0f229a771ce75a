#include "core/widgets/keyboard.h"

#include "core/widgets/campos.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {
class TecladoDoSistema : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            auto *key = static_cast<QKeyEvent *>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                // On a button Enter presses it; everywhere else it is a Tab.
                if (auto *button = qobject_cast<QPushButton *>(watched)) {
                    button->click();
                    return true;
                }
                QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
                QCoreApplication::sendEvent(watched, &tab);
                return true;
            }
            if (key->text() == QStringLiteral("\""))
                return true;
        } else if (event->type() == QEvent::FocusIn) {
            if (qobject_cast<QLineEdit *>(watched) || qobject_cast<QAbstractSpinBox *>(watched)) {
                // After the click that gave the focus has placed the cursor.
                QPointer<QWidget> guard(static_cast<QWidget *>(watched));
                QTimer::singleShot(0, guard, [guard] {
                    if (guard && guard->hasFocus())
                        SelecionaCampo();
                });
            }
        }
        return false;
    }
};

TecladoDoSistema *teclado()
{
    static TecladoDoSistema *filter = new TecladoDoSistema(qApp);
    return filter;
}
}

namespace {
class FiltroPerdaDeFoco : public QObject {
public:
    FiltroPerdaDeFoco(QWidget *campo, std::function<void()> acao) : QObject(campo), acao_(std::move(acao))
    {
        campo->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            // Qt has already moved the focus when the field hears that it lost it.
            QWidget *form = formDe(static_cast<QWidget *>(watched));
            QWidget *novo = QApplication::focusWidget();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && form && !fechando(*form)
                && novo && form->isAncestorOf(novo))
                acao_();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> acao_;
};
} // namespace

void aoPerderFoco(QWidget *campo, std::function<void()> acao) { new FiltroPerdaDeFoco(campo, std::move(acao)); }

void marcaFechando(QWidget &form) { form.setProperty("habFechando", true); }

bool fechando(const QWidget &form) { return form.property("habFechando").toBool(); }

QWidget *formDe(QWidget *controle)
{
    for (QWidget *w = controle; w; w = w->parentWidget()) {
        if (w->isWindow() || qobject_cast<QMdiSubWindow *>(w->parentWidget()))
            return w;
    }
    return nullptr;
}

void aplicaTeclado(QWidget &form)
{
    form.installEventFilter(teclado());
    for (QWidget *child : form.findChildren<QWidget *>())
        child->installEventFilter(teclado());
}

Ampulheta::Ampulheta() { QApplication::setOverrideCursor(Qt::WaitCursor); }
Ampulheta::~Ampulheta() { QApplication::restoreOverrideCursor(); }

void ponteiroNormal()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}
