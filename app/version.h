/* The program's identity, shared by the resources and whoever needs it at compile
   time. At run time the program asks its version resource. */
#pragma once

#define TELLARY_VERSION_MAJOR 5
#define TELLARY_VERSION_MINOR 3
#define TELLARY_VERSION_REVISION 0
#define TELLARY_VERSION_BUILD 0
#define TELLARY_VERSION_TEXT "5.3.0.0"
#define TELLARY_PRODUCT "Tellary"
#define TELLARY_COMPANY "Zandor Software Development"
#define TELLARY_COPYRIGHT "Copyright \251 2002-2026 Zandor Software Development"
