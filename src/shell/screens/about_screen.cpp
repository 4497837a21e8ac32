#include "shell/screens/about_screen.h"

#include <utility>

namespace tidewell {

AboutScreen::AboutScreen(std::shared_ptr<ContentView> view, QObject* parent)
    : Screen(parent),
      view_(std::move(view)),
      links_([](const AboutLink& link) { return std::string(link.label); },
             {{"symbol", [](const AboutLink& link) { return toText(link.symbol); }},
              {"title", [](const AboutLink& link) { return toText(link.label); }}},
             this) {
    observe(view_->willChange);
    links_.set(aboutLinks(view_->host().ownBundle.website));
}

void AboutScreen::openLink(int row) {
    if (const auto* link = links_.at(row)) view_->workspace().openUrl(link->target);
}

}  // namespace tidewell
