// SPDX-License-Identifier: GPL-3.0-or-later

// Has the headers of the test framework compiled.
