#include "workspace/AboutKestruneView.h"

namespace larkspan::workspace {

AboutKestruneView::AboutKestruneView(const Bundle& bundle, platform::LinkOpener& links)
    : opener_(links)
    , version_(bundle.shortVersion.empty() ? "1.0" : bundle.shortVersion)
    , build_(bundle.buildNumber.empty() ? "1" : bundle.buildNumber)
    , links_{{
          {"globe", "Kestrune", "Visit our website", bundle.websiteAddress},
          {"bubble.left.and.bubble.right", "Community on Discord", "Chat with our team", bundle.communityAddress},
          {"chevron.left.forwardslash.chevron.right", "GitHub", "Source code and issue tracking",
              bundle.organisationAddress},
      }}
{
}

}  // namespace larkspan::workspace
