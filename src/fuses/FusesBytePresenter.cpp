#include "fuses/FusesBytePresenter.h"

#include "fuses/FuseMeanings.h"
#include "fuses/FusesByteModel.h"
#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"
#include "fuses/SettingsMenu.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QToolTip>

namespace {

/// Keys that the field handles itself.
bool isEditingKey(int key)
{
    switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
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

/// Says @p texts to who points at @p widget and to who listens to it.
void tell(QWidget* widget, const QStringList& texts)
{
    const QString text = texts.join(QLatin1Char('\n'));
    widget->setToolTip(text);
    widget->setAccessibleDescription(text);
    if (QToolTip::isVisible() && widget->underMouse()) // typing does not close it
        QToolTip::showText(QCursor::pos(), widget->toolTip(), widget);
}

/// Marks the label of @p checkBox or takes the mark away: bold, and no wider than it is otherwise, so that no label
/// moves.
void mark(QCheckBox* checkBox, bool isMarked)
{
    QFont font;
    const QString label = checkBox->text();
    if (isMarked && !label.isEmpty()) {
        font = checkBox->parentWidget()->font();
        const qreal width = QFontMetricsF(font).horizontalAdvance(label);
        font.setBold(true);
        font.setLetterSpacing(QFont::AbsoluteSpacing,
                              (width - QFontMetricsF(font).horizontalAdvance(label)) / static_cast<int>(label.size()));
    }
    checkBox->setFont(font);
}

bool isHexDigit(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_F);
}

} // namespace

FusesBytePresenter::FusesBytePresenter(FusesByteView& view, FusesByteModel& model, const FuseMeanings& meanings,
                                       QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_model(model)
    , m_meanings(meanings)
{
    connect(&view, &FusesByteView::bitChanged, this, &FusesBytePresenter::onBitChanged);
    connect(&view, &FusesByteView::settingsWanted, this, &FusesBytePresenter::offerSettings);
    connect(view.value(), &HexField::left, this, &FusesBytePresenter::showValue);
    setModel(model.byte());
    view.value()->installEventFilter(this);
}

void FusesBytePresenter::setModel(const FuseByte& byte)
{
    m_view.setTitle(QStringLiteral("%1 ( %2 )").arg(byte.name, byte.id));
    show();
}

void FusesBytePresenter::setByte(quint32 value)
{
    m_model.setByte(value);
    show();
}

void FusesBytePresenter::show()
{
    delete m_settings; // it is about another value
    showBits();
    showValue();
}

void FusesBytePresenter::release()
{
    delete m_settings;
    m_view.disconnect(this);
    m_view.value()->disconnect(this);
    m_view.value()->removeEventFilter(this);
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
    showMeanings();
    emit m_view.byteChanged(value);
}

void FusesBytePresenter::showMeanings()
{
    const FuseByte& byte = m_model.byte();
    QVector<QStringList> bitTexts(m_view.fusesBit().size());
    QStringList byteTexts;
    const auto texts = m_meanings.of(byte);
    for (const FuseMeanings::Text& about : texts) {
        byteTexts += about.text;
        for (int i = 0; i < bitTexts.size(); ++i) {
            if ((about.bits >> i & 1U) != 0)
                bitTexts[i] += about.text;
        }
    }
    tell(m_view.value(), byteTexts);
    const quint32 changed = m_meanings.changed(byte);
    for (int i = 0; i < bitTexts.size(); ++i) {
        QCheckBox* checkBox = m_view.fusesBit().at(i);
        tell(checkBox, bitTexts.at(i));
        mark(checkBox, (changed >> i & 1U) != 0);
    }
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

void FusesBytePresenter::offerSettings(int number, const QPoint& position)
{
    const auto settings = m_meanings.settings(m_model.byte(), number);
    if (settings.isEmpty())
        return;
    auto* menu = new SettingsMenu(settings, &m_view);
    m_settings = menu;
    connect(menu, &SettingsMenu::chosen, this, [this](quint32 value) {
        const QVector<QCheckBox*>& boxes = m_view.fusesBit();
        for (int i = 0; i < boxes.size(); ++i)
            boxes.at(i)->setChecked((value >> i & 1U) == 0); // as a click does
    });
    menu->popup(position);
}
