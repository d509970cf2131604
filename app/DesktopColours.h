// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace app {

// Has the toolkit take the colours of a dark Windows, too; asked before there is an application.
// Elsewhere it does so by itself.
void AskForDarkColours();

// The style in which Windows draws controls knows light colours alone: while the colours of the
// application are dark they are drawn in one that follows colours. Lasts as long as the application
// and leaves other styles as they are.
void FollowDesktopColours();

}  // namespace app
