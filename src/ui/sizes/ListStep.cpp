#include "ui/sizes/ListStep.h"

#include <memory>
#include <utility>

#include "session/OwnLists.h"

namespace tavrin {

void changeLists(SettingEditor& editor, HeldLoop& loop, ListStep step) {
    loop.run([&editor, &loop, step = std::move(step)] {
        const auto before = std::make_shared<const OwnLists>(editor.info());
        const auto inTurn = [&loop, finished = step.finished](std::function<std::string()> work) {
            return [&loop, finished, work = std::move(work)] { loop.run([=] { finished(work()); }); };
        };
        const std::string problem = step.work();
        editor.beginStep(step.label.toStdString());
        editor.note({inTurn([&editor, before] { return before->putBack(editor.info()); }), inTurn(step.work)});
        editor.endStep();
        step.finished(problem);
    });
}

}  // namespace tavrin
