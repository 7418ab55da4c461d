#include "KeptOf.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <QBuffer>
#include <QFile>
#include <QUiLoader>

#include <gmock/gmock.h>

namespace Korvane::Testing {

using testing::HasSubstr;
using testing::Not;

namespace {

/// Designer without its window, with a form open in it.
class Designer {
  public:
    explicit Designer(const char* file) {
        QCoreApplication::addLibraryPath(KORVANE_PLUGINS);
        QDesignerComponents::initializeResources();
        mCore.reset(QDesignerComponents::createFormEditor(nullptr));
        new QDesignerIntegration(mCore.get(), mCore.get());
        QDesignerComponents::initializePlugins(mCore.get());
        mForm = mCore->formWindowManager()->createFormWindow();
        QFile ui(file);
        QString problem;
        EXPECT_TRUE(ui.open(QIODevice::ReadOnly) && mForm->setContents(&ui, &problem))
            << problem.toStdString();
    }

    const QWidget& form() const { return *mForm->mainContainer(); }
    QDesignerPropertySheetExtension& sheet(const char* name) const {
        return *qt_extension<QDesignerPropertySheetExtension*>(mCore->extensionManager(),
                                                               &control(form(), name));
    }
    void set(const char* name, const char* property, const QVariant& value) const {
        auto& properties = sheet(name);
        const int index = properties.indexOf(property);
        properties.setProperty(index, value);
        properties.setChanged(index, true);
    }
    QByteArray saved() const { return mForm->contents().toUtf8(); }

  private:
    std::unique_ptr<QDesignerFormEditorInterface> mCore;
    QDesignerFormWindowInterface* mForm = nullptr;
};

} // namespace

TEST(Designer, SavesExactlyWhatTheControlsKeep) {
    const Designer designer(KORVANE_TESTS_DIR "/designer/visit.ui");
    expectVisit(designer.form());
    for (const char* name : {"nip", "born", "orders", "visits", "field"})
        EXPECT_TRUE(control(designer.form(), name).designMode()) << name;
    designer.set("born", "MaximumDate", "12/31/2026");
    designer.set("orders", "btnsFontBold", true);
    designer.set("field", "RecNumber", "7");
    designer.set("nip", "NumbersGroups", true);
    const QByteArray form = designer.saved();
    for (const char* passing : {"MaximumDate", "btnsFontBold", "RecNumber", "NumbersGroups"})
        EXPECT_THAT(form.toStdString(), Not(HasSubstr(passing)));
    QBuffer buffer;
    buffer.setData(form);
    QUiLoader loader;
    loader.addPluginPath(KORVANE_PLUGINS "/designer");
    const std::unique_ptr<QWidget> again(loader.load(&buffer));
    ASSERT_TRUE(again) << loader.errorString().toStdString();
    expectVisit(*again);
}

TEST(Designer, MarksThePropertiesThatNoFormKeeps) {
    const Designer designer(KORVANE_TESTS_DIR "/designer/visit.ui");
    struct Case {
        const char *control, *property, *group;
    };
    for (const Case& c : {Case{"born", "MaximumDate", "axDate, not kept"},
                          {"born", "axDate", "Korvane::axDate"},
                          {"orders", "Enabled", "funcPanel, not kept"},
                          {"visits", "Enabled", "Korvane::movebtn"},
                          {"visits", "btnText1", "Korvane::movebtn"},
                          {"field", "RecNumber", "dbxadmin, not kept"},
                          {"nip", "PatientID", "ucNIPPanel, not kept"}}) {
        const auto& sheet = designer.sheet(c.control);
        EXPECT_EQ(sheet.propertyGroup(sheet.indexOf(c.property)).toStdString(), c.group) << c.property;
    }
}

} // namespace Korvane::Testing
