/* Identifiers of the pictures in the program's resources, shared by the resource
   script and the code that loads them. The order of the icons counts: the shell
   takes the icon of a document by its place among the icon groups, and those are
   sorted by identifier. */
#pragma once

#define IDI_PROGRAM 1
#define IDI_CONTACT 2
#define IDI_DOCUMENT 3

/* The pictures of all commands in one row, by the height of a picture in pixels. */
#define IDB_TOOLBAR16 101
#define IDB_TOOLBAR20 102
#define IDB_TOOLBAR24 103
#define IDB_TOOLBAR32 104

/* The maker's logo, by the resolution it is drawn for. */
#define IDB_LOGO96 111
#define IDB_LOGO144 112
#define IDB_LOGO192 113
