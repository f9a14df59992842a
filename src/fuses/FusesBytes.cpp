#include "fuses/FusesBytes.h"

#include "avrdude/Avrdude.h"
#include "fuses/FusesByteModel.h"
#include "fuses/FusesBytePresenter.h"
#include "fuses/FusesByteView.h"
#include "fuses/FusesBytesView.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <memory>

FusesBytes::FusesBytes(Avrdude& avrdude, FusesBytesView& view, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_view(view)
{
}

void FusesBytes::rebuild()
{
    while (const std::unique_ptr<QLayoutItem> item {m_view.editors()->takeAt(0)}) {
        item->widget()->hide(); // at once: the deletion waits for the event loop, and a box may be opened before
        item->widget()->deleteLater();
    }
    m_editors.clear();

    SettingsRecord& settings = m_avrdude.settings();
    m_meanings.load(settings);
    for (int i = 0; i < settings.fusesBytes.size(); ++i)
        m_view.editors()->addWidget(makeEditor(i));
    settings.fusesEnable = !settings.fusesBytes.isEmpty();
}

void FusesBytes::refresh()
{
    const FuseBytes& bytes = m_avrdude.settings().fusesBytes;
    // A profile may have brought another list while a box still keeps it from being shown.
    if (bytes.size() != m_editors.size()) {
        rebuild();
        return;
    }
    for (int i = 0; i < m_editors.size(); ++i)
        m_editors.at(i)->setByte(bytes.at(i).currentValue);
}

QWidget* FusesBytes::makeEditor(int index)
{
    auto* editor = new QWidget(&m_view);
    auto* view = new FusesByteView(editor);
    auto* model = new FusesByteModel(m_avrdude.settings().fusesBytes, index, editor);
    m_editors.append(new FusesBytePresenter(*view, *model, m_meanings, editor));

    auto* layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    return editor;
}
