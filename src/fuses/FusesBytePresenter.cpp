#include "fuses/FusesBytePresenter.h"

#include "fuses/FusesByteModel.h"
#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

/// Keys that the field handles itself.
bool isEditingKey(int key)
{
    switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

bool isHexDigit(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_F);
}

} // namespace

FusesBytePresenter::FusesBytePresenter(FusesByteView& view, FusesByteModel& model, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_model(model)
{
    connect(&view, &FusesByteView::bitChanged, this, &FusesBytePresenter::onBitChanged);
    connect(view.value(), &HexField::left, this, &FusesBytePresenter::showValue);
    setModel(model.byte());
    view.value()->installEventFilter(this);
}

void FusesBytePresenter::setModel(const FuseByte& byte)
{
    m_view.setTitle(QStringLiteral("%1 ( %2 )").arg(byte.name, byte.id));
    setByte(byte.currentValue);
}

void FusesBytePresenter::setByte(quint32 value)
{
    m_model.setByte(value);
    showBits();
    showValue();
}

void FusesBytePresenter::showBits()
{
    const FuseByte& byte = m_model.byte();
    for (int i = 0; i < m_view.fusesBit().size(); ++i) {
        const FuseBit& bit = byte.fuseBits[static_cast<std::size_t>(i)];
        QCheckBox* checkBox = m_view.fusesBit().at(i);
        const QSignalBlocker blocker(checkBox);
        checkBox->setEnabled(bit.enabled);
        checkBox->setText(bit.name);
        checkBox->setChecked(bit.currentBitValue == 0);
    }
}

void FusesBytePresenter::showValue()
{
    const quint32 value = m_model.byte().currentValue;
    const int cursor = m_view.value()->cursorPosition();
    m_view.value()->setText(QString::number(value, 16).rightJustified(2, QLatin1Char('0')));
    m_view.value()->setCursorPosition(cursor);
    emit m_view.byteChanged(value);
}

void FusesBytePresenter::onBitChanged(const QVector<QCheckBox*>& fusesBit, QCheckBox* checkBox)
{
    m_model.setBit(static_cast<int>(fusesBit.indexOf(checkBox)), checkBox->isChecked());
    showValue();
}

bool FusesBytePresenter::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    // Modifiers are not asked: with Ctrl a digit is typed too, and no key pastes into a fuse byte.
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEditingKey(key))
        return QObject::eventFilter(object, event);
    if (isHexDigit(key))
        typeDigit(QChar(key));
    return true;
}

void FusesBytePresenter::typeDigit(QChar digit)
{
    HexField* field = m_view.value();
    QString text = field->displayText(); // always two characters: a deleted one is a blank
    int cursor = field->hasSelectedText() ? 0 : field->cursorPosition();
    if (cursor == 0) {
        text[0] = digit;
        cursor = 1;
    } else if (cursor != 2) {
        text[1] = digit;
        cursor = 2;
    }
    text.replace(QLatin1Char(' '), QLatin1Char('0')); // until it is typed
    setByte(text.toUInt(nullptr, 16));
    field->setCursorPosition(cursor);
}
