// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_BROWSER_BROWSEREXPORTS_H
#define SIMULATOR_BROWSER_BROWSEREXPORTS_H

/** @file
 *  The way from a page to an application that was compiled to WebAssembly.
 */

#include "Simulator/Browser/BrowserSession.h"

/** Lets the page run an application. It is called once, as by the main function, and the functions that the
 *  page calls (Page/engine.js) work from then on.
 *  @param kApplication not owned; it lives as long as the page
 *  @param kOffered the lines that the page offers, not owned
 *  @throws what the application's Start throws
 */
void RunInBrowser(CSimulatedApplication& kApplication, const OfferedLines_t& kOffered);

/** Looks whether what the application is made of has changed. After RunInBrowser.
 *  @return the answer of CBrowserSession::Look
 *  @throws what the application's Start throws
 */
const eC_Char* LookInBrowser(CSimulatedSource& kSource);

#endif
