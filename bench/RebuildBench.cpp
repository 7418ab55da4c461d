#include "BareForm.h"
#include "BareSqlite.h"
#include "Benches.h"
#include "Measure.h"
#include "SyntheticClinic.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/nip/cNIP.h>

#include <QLabel>

#include <string>
#include <vector>

namespace Korvane::Bench {

namespace {

constexpr int encounter = 1;

void show(QWidget& form) {
    form.resize(1000, 750);
    form.show();
    form.repaint();
}

/// A field of the tab in view gets another caption.
class Customizer {
  public:
    explicit Customizer(const std::string& address) : mDb(address) {}

    std::string change() {
        std::string caption = "Caption in turn " + std::to_string(++mTurn);
        mDb.run("Update DBFields Set FieldCaption='" + caption + "' Where ID=2");
        return caption;
    }

  private:
    BareSqlite mDb;
    int mTurn = 0;
};

void ours(benchmark::State& state, Place place, Size size) {
    const std::string address = databaseToCustomize(place, size);
    Customizer customizer(address);
    cNIP nip;
    if (!nip.LoadStructure(ado::open(address)) || !nip.Load(encounter, "P-0001", false))
        return state.SkipWithError("not loaded");
    NipTabs tabs;
    tabs.CreateNipControls(nip);
    show(tabs);
    std::vector<LostEntry> lost;
    for (auto _ : state) {
        state.PauseTiming();
        customizer.change();
        state.ResumeTiming();
        if (!nip.ReloadStructure(lost)) return state.SkipWithError("not loaded anew");
        tabs.CreateNipControls(nip);
        tabs.repaint();
    }
}

void literal(benchmark::State& state, Place place, Size size) {
    const std::string address = databaseToCustomize(place, size);
    Customizer customizer(address);
    const BareSqlite db(address);
    const auto form = bareForm(size);
    show(*form);
    QLabel* label = form->findChildren<QLabel*>().at(1);
    KeptCells cells;
    for (auto _ : state) {
        state.PauseTiming();
        const std::string caption = customizer.change();
        state.ResumeTiming();
        cells.rewind();
        db.run("Begin");
        for (const std::string& statement : structureStatements())
            db.run(statement, cells);
        for (int group = 1; group <= size.groups; ++group)
            db.run(selectStatement(size, group, encounter), cells);
        db.run("Commit");
        label->setText(QString::fromStdString(caption));
        label->repaint();
    }
}

} // namespace

void registerRebuild() {
    for (const Size& size : serverSizes) {
        measure("Rebuild", file, size, "korvane", ours);
        measure("Rebuild", file, size, "literal", literal);
    }
}

} // namespace Korvane::Bench
