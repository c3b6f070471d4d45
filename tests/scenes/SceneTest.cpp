// SPDX-License-Identifier: MIT
#include "tests/scenes/SceneTest.h"

#include "tests/SourceFolder.h"
#include "tests/scenes/Steps.h"

#include <QDir>

namespace korvel::testing
{
namespace
{

class SceneTest : public ::testing::Test
{
public:
    explicit SceneTest(Scene scene) : m_scene(std::move(scene)) {}

    void TestBody() override
    {
        Stage stage;
        for (const Step& step : m_scene.steps) {
            const ::testing::ScopedTrace trace(m_scene.file.c_str(), step.line, step.source);
            try {
                play(stage, step.verb, step.words);
            } catch (const std::exception& fault) {
                ADD_FAILURE_AT(m_scene.file.c_str(), step.line) << fault.what();
            }
            // What follows would only tell the same again.
            if (HasFailure()) return;
        }
    }

private:
    Scene m_scene;
};

} // namespace

void registerScenes()
{
    const QDir folder(QString::fromStdString(sourceFile("tests/scenes")));
    for (const QString& name : folder.entryList({"*.scene"}, QDir::Files, QDir::Name))
        for (Scene& scene : readScenes("tests/scenes/" + name.toStdString())) {
            const std::string suite = QFileInfo(name).baseName().toStdString() + "Scene";
            ::testing::RegisterTest(suite.c_str(), scene.name.c_str(), nullptr, nullptr,
                                    scene.file.c_str(), scene.line,
                                    [scene] { return new SceneTest(scene); });
        }
}

} // namespace korvel::testing
