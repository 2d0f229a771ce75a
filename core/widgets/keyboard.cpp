#include "core/widgets/keyboard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
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
                QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
                QCoreApplication::sendEvent(watched, &tab);
                return true;
            }
            if (key->text() == QStringLiteral("\""))
                return true;
        } else if (event->type() == QEvent::FocusIn) {
            if (auto *edit = qobject_cast<QLineEdit *>(watched)) {
                // After the click that gave the focus has placed the cursor.
                QPointer<QLineEdit> guard(edit);
                QTimer::singleShot(0, edit, [guard] {
                    if (guard && guard->hasFocus())
                        guard->selectAll();
                });
            } else if (auto *spin = qobject_cast<QAbstractSpinBox *>(watched)) {
                QTimer::singleShot(0, spin, [spin] { spin->selectAll(); });
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
