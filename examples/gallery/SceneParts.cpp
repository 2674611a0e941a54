#include "examples/gallery/SceneParts.h"

namespace quillgrid::example {

Scene InDark(Scene scene, const QString& name, const QString& text) {
    scene.Name = name;
    scene.Text = text;
    scene.Dark = true;
    scene.Golden = scene.Scale > 1; // one in the dark of each kind is enough
    return scene;
}

Scene InDouble(Scene scene, const QString& name, const QString& text) {
    scene.Name = name;
    scene.Text = text;
    scene.Scale = 2;
    return scene;
}

Scene Only(Scene scene, std::initializer_list<std::size_t> places) {
    std::vector<SceneForm> forms;
    for (const std::size_t place : places)
        forms.push_back(scene.Forms.at(place));
    scene.Forms = std::move(forms);
    return scene;
}

} // namespace quillgrid::example
