#include "base/ListComboBox.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

bool hasPrintableText(const QKeyEvent& event)
{
    const QString text = event.text();
    return !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace();
}

bool beginsSearch(const QKeyEvent& event)
{
    return hasPrintableText(event) && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool wouldChoose(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown
        || key == Qt::Key_Home || key == Qt::Key_End;
}

/// What of @p text counts where something is looked for.
QString essence(QString text)
{
    static const QRegularExpression ignored(QStringLiteral("[\\s_-]"));
    return text.remove(ignored).toCaseFolded();
}

constexpr int wordsRole = Qt::UserRole + 1; ///< the words for an entry, each between line breaks

/// Looks for the essence of what is typed in the words of the entries, and shows their names.
class EntryCompleter : public QCompleter
{
public:
    using QCompleter::QCompleter;

    [[nodiscard]] QStringList splitPath(const QString& typed) const override { return {essence(typed)}; }
    [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override { return index.data().toString(); }
};

} // namespace

ListComboBox::ListComboBox(Width width, QWidget* parent)
    : QComboBox(parent)
{
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    connect(this, &QComboBox::currentTextChanged, this, [this] {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    });
    if (width == Width::Any) {
        constexpr int minimumLength = 3; // characters
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        setMinimumContentsLength(minimumLength);
    }
}

QStringList ListComboBox::told() const
{
    QStringList texts {currentText(), m_remark};
    texts.removeAll({});
    return texts;
}

bool ListComboBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(told().join(QLatin1Char('\n')));
    return QComboBox::event(event);
}

bool ListComboBox::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && object == m_search && !m_completer->popup()->isVisible())
        endSearch();
    if (event->type() == QEvent::MouseButtonPress && object != m_search && object != view()
        && !m_completer->popup()->rect().contains(static_cast<QMouseEvent*>(event)->pos()))
        endSearch(); // a click somewhere else
    if (event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(object, event);

    auto* key = static_cast<QKeyEvent*>(event);
    if (object == view() && beginsSearch(*key)) {
        startSearch(key);
        return true;
    }
    if (object == view())
        return QComboBox::eventFilter(object, event);
    const bool isBack = key->key() == Qt::Key_Backtab;
    if (key->key() == Qt::Key_Escape || key->key() == Qt::Key_Tab || isBack) {
        endSearch();
        if (key->key() != Qt::Key_Escape)
            focusNextPrevChild(!isBack);
        return true;
    }
    return QComboBox::eventFilter(object, event);
}

void ListComboBox::showPopup()
{
    view()->setMinimumWidth(listWidth());
    view()->installEventFilter(this);
    QComboBox::showPopup();
}

void ListComboBox::keyPressEvent(QKeyEvent* event)
{
    if (beginsSearch(*event))
        startSearch(event);
    else if (wouldChoose(event->key()))
        showPopup();
    else if (hasPrintableText(*event))
        event->ignore(); // a shortcut of somebody else's: the toolkit would pick by it
    else
        QComboBox::keyPressEvent(event);
}

void ListComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (currentIndex() < 0) {
        // With a style sheet Qt 5.15 has no brush for a placeholder, and draws none.
        option.currentText = placeholderText();
        QColor faint = palette().color(QPalette::ButtonText);
        faint.setAlphaF(0.5);
        option.palette.setBrush(QPalette::ButtonText, faint);
    }
    constexpr int margins = 2; // pixels, which styles leave beside the text; they would cut a longer one off
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width() - margins);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ListComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // for what lies around it
}

int ListComboBox::listWidth() const
{
    return view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
}

void ListComboBox::makeSearch()
{
    m_search = new QLineEdit(this);
    m_search->setContextMenuPolicy(Qt::NoContextMenu);
    m_search->setAccessibleName(accessibleName());
    m_search->installEventFilter(this);
    auto* sorted = new QSortFilterProxyModel(this); // a plain name before those that add to it, for Enter
    sorted->setSourceModel(model());
    sorted->sort(0);
    m_completer = new EntryCompleter(sorted, this);
    m_completer->setCompletionRole(wordsRole);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setMaxVisibleItems(maxVisibleItems());
    m_completer->popup()->installEventFilter(this);
    m_search->setCompleter(m_completer);
    connect(m_search, &QLineEdit::returnPressed, this, &ListComboBox::pickFound);
    connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this,
            [this](const QString& name) { pick(findText(name)); });
}

void ListComboBox::startSearch(QKeyEvent* firstKey)
{
    if (count() == 0)
        return;
    learnWords();
    if (!m_search)
        makeSearch();
    hidePopup();
    m_search->clear();
    m_search->setGeometry(rect());
    m_search->show();
    m_search->setFocus();
    m_completer->popup()->setMinimumWidth(listWidth());
    QCoreApplication::sendEvent(m_search, firstKey);
}

void ListComboBox::endSearch()
{
    m_completer->popup()->hide();
    if (m_search->hasFocus())
        setFocus();
    m_search->hide();
}

void ListComboBox::learnWords()
{
    const QSignalBlocker blocker(this); // what an entry is also called changes no choice
    for (int i = 0; i < count(); ++i) {
        if (itemData(i, wordsRole).isValid())
            continue;
        QString words(QLatin1Char('\n'));
        for (const QString& word : QStringList {itemText(i)} + (m_wordsFor ? m_wordsFor(itemText(i)) : QStringList()))
            words += essence(word) + QLatin1Char('\n');
        setItemData(i, words, wordsRole);
    }
}

void ListComboBox::pickFound()
{
    const QString typed = essence(m_search->text());
    if (typed.isEmpty())
        return;
    const QString word = QLatin1Char('\n') + typed + QLatin1Char('\n');
    int index = findText(m_search->text());
    if (index < 0)
        index = findData(word, wordsRole, Qt::MatchStartsWith); // a name, in whatever spelling
    if (index < 0)
        index = findData(word, wordsRole, Qt::MatchContains);
    if (index < 0)
        index = findText(m_completer->currentCompletion());
    pick(index);
}

void ListComboBox::pick(int index)
{
    if (index < 0 || m_search->isHidden())
        return;
    endSearch();
    const QString name = itemText(index);
    setCurrentIndex(index);
    emit activated(index);
    emit textActivated(name);
}
