#include "fuses/FusesBytes.h"

#include "app/record/SettingsRecord.h"
#include "fuses/FusesByteModel.h"
#include "fuses/FusesBytePresenter.h"
#include "fuses/FusesByteView.h"
#include "fuses/FusesBytesView.h"
#include "fuses/HexField.h"
#include "mcu/description/BytesModel.h"

#include <QHBoxLayout>
#include <QJsonObject>
#include <QVBoxLayout>

#include <memory>
#include <utility>

FusesBytes::FusesBytes(SettingsRecord& settings, FusesBytesView& view, QWidget& before, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_view(view)
    , m_before(before)
{
    connect(&view, &FusesBytesView::shown, this, &FusesBytes::explain);
}

void FusesBytes::rebuild()
{
    for (FusesBytePresenter* editor : std::as_const(m_editors))
        editor->release(); // from a list that may be shorter by now; hiding the one with the focus would ask it
    while (const std::unique_ptr<QLayoutItem> item {m_view.editors()->takeAt(0)}) {
        item->widget()->hide(); // at once: the deletion waits for the event loop, and a box may be opened before
        item->widget()->deleteLater();
    }
    m_editors.clear();

    bringTogether(m_settings.fusesBytes);
    m_meanings.clear();
    if (m_view.isVisible()) // else when somebody looks
        m_meanings.load(m_settings);
    QWidget* before = &m_before; // a new widget comes last in the window, behind the log
    for (int i = 0; i < m_settings.fusesBytes.size(); ++i) {
        FusesByteView* view = makeEditor(i);
        view->putIntoTabOrder(before);
        before = view->value();
    }
    m_settings.fusesEnable = !m_settings.fusesBytes.isEmpty();
    explainAbsence();
}

void FusesBytes::refresh()
{
    // A profile may have brought another list while a box still keeps it from being shown.
    if (m_settings.fusesBytes.size() != m_editors.size()) {
        rebuild();
        return;
    }
    bringTogether(m_settings.fusesBytes);
    for (FusesBytePresenter* editor : std::as_const(m_editors))
        editor->show();
}

void FusesBytes::explain()
{
    explainAbsence();
    if (m_meanings.isLoaded() || m_settings.fusesBytes.size() != m_editors.size())
        return; // or the editors are about to be made anew
    m_meanings.load(m_settings);
    for (FusesBytePresenter* editor : std::as_const(m_editors))
        editor->showMeanings();
}

void FusesBytes::explainAbsence()
{
    if (!m_settings.fusesBytes.isEmpty()) {
        m_view.setReason({});
        return;
    }
    const QString reason = BytesModel::description(m_settings).value(QLatin1String("withoutFuseBytes")).toString();
    if (reason == QLatin1String("unreachable"))
        m_view.setReason(tr("An ISP programmer does not reach the fuse bytes of this microcontroller."));
    else if (reason == QLatin1String("unreliable"))
        m_view.setReason(tr("avrdude cannot be relied on for the fuse bytes of this microcontroller."));
    else
        m_view.setReason(tr("No fuse bytes are loaded. Choose the microcontroller in the first tab."));
}

FusesByteView* FusesBytes::makeEditor(int index)
{
    auto* editor = new QWidget(&m_view);
    auto* view = new FusesByteView(editor);
    auto* model = new FusesByteModel(m_settings.fusesBytes, index, editor);
    m_editors.append(new FusesBytePresenter(*view, *model, m_meanings, editor));

    auto* layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    m_view.editors()->addWidget(editor);
    return view;
}
