// The texts of the language libraries by number, shared by the program and the resource scripts.
// The English text stands beside each. Numbers below 2000 are a contract with the language packs
// and with the Today item; our own begin at 2000.
#pragma once

// The list of groups.
#define IDS_GROUP_GENERAL 617         // General
#define IDS_GROUP_CALENDAR 618        // Calendar
#define IDS_GROUP_TASKS 619           // Tasks
#define IDS_GROUP_NOTES 1259          // Notes
#define IDS_GROUP_CONTACTS 1432       // Contacts
#define IDS_GROUP_MESSAGES 1260       // Messages
#define IDS_GROUP_SPECIAL_EVENTS 620  // Special events
#define IDS_GROUP_FONTS 621           // Fonts
#define IDS_GROUP_COLORS 622          // Colors
#define IDS_GROUP_PIM 624             // PIM
#define IDS_GROUP_TABS 625            // Tabs
#define IDS_GROUP_CATEGORIES 626      // Categories
#define IDS_EXIT_QUESTION 613         // Exit without saving your changes?
#define IDS_EXIT_CAPTION 614          // Exit Settings

// The built-in tabs of the Today item.
#define IDS_TAB_CALENDAR 1436        // Calendar
#define IDS_TAB_TASKS 1416           // Tasks
#define IDS_TAB_NOTES 1417           // Notes
#define IDS_TAB_CONTACTS 1418        // Contacts
#define IDS_TAB_MAIL 1419            // Mail
#define IDS_TAB_SPECIAL_EVENTS 1420  // Special events

// Export and import; the path follows the first text, in quotes.
#define IDS_EXPORT_DONE 607            // Backup of the settings:
#define IDS_EXPORT_DONE_CAPTION 608    // Export finished
#define IDS_IMPORT_FAILED 609          // This file cannot be read as a settings backup.
#define IDS_IMPORT_FAILED_CAPTION 610  // Import failed
#define IDS_IMPORT_DONE 611            // The settings were imported. The program closes now.
#define IDS_IMPORT_DONE_CAPTION 612    // Import finished

// Categories and filters.
#define IDS_ALL_CATEGORIES 101  // All

// Every page.
#define IDS_PAGE_TAB_GENERAL 635        // General
#define IDS_PAGE_TAB_DISPLAY 1062       // Display
#define IDS_PAGE_TAB_OTHER 642          // Other
#define IDS_BROWSE 856                  // Select
#define IDS_CLEAR 859                   // Clear
#define IDS_COLOR_AUTOMATIC 915         // Auto
#define IDS_SELECT_ENTRY 634            // Select an entry in the list first.
#define IDS_SELECT_ENTRY_CAPTION 633    // Nothing selected
#define IDS_MOVE_UP 643                 // Up
#define IDS_MOVE_DOWN 644               // Down
#define IDS_DIVIDER 1068                // Dividing line
#define IDS_DIVIDER_NONE 109            // None
#define IDS_DIVIDER_SOLID 110           // Solid
#define IDS_DIVIDER_DOTTED 111          // Dotted
#define IDS_DIVIDER_FADING 1233         // Fading
#define IDS_SHOW_FOLD_BUTTONS 1069      // Show fold buttons
#define IDS_SHOW_COUNTERS 1254          // Show counters
#define IDS_NAME_FORMAT 1444            // Name format
#define IDS_NAME_FIRST_LAST 1441        // First name first
#define IDS_NAME_LAST_FIRST 1442        // Last name first
#define IDS_NAME_AS_FILED 1443          // As filed
#define IDS_ACTION_KEY 1477             // Action key
#define IDS_ACTION_KEY_AS_GENERAL 1474  // As in General
#define IDS_ACTION_KEY_OPENS 1475       // Open
#define IDS_TAP_OPENS 1478              // Open on a single tap
#define IDS_PREVIEW_WHEN_OPENED 1470    // Show a preview when opening
#define IDS_NONE_SELECTED 1421          // None

// General.
#define IDS_GENERAL_TAB_LOOK 1491                 // Look
#define IDS_GENERAL_TAB_DPAD 1348                 // D-pad
#define IDS_ON_TAP 997                            // On a tap
#define IDS_ON_TAP_SELECT 115                     // Select
#define IDS_ON_TAP_OPEN 116                       // Open
#define IDS_ON_TAP_PREVIEW 998                    // Preview
#define IDS_ON_DOUBLE_TAP 999                     // On a double tap
#define IDS_ON_DOUBLE_TAP_OPEN 1000               // Open
#define IDS_ON_DOUBLE_TAP_PREVIEW 1001            // Preview
#define IDS_ON_DOUBLE_TAP_NOTHING 1002            // Do nothing
#define IDS_AUTO_HEIGHT 1490                      // Fit height to the content
#define IDS_HEIGHT_LIMIT 1003                     // Height
#define IDS_HEIGHT_LIMIT_LANDSCAPE 1004           // Height, landscape
#define IDS_SKIN_FOLDER 988                       // Skin folder
#define IDS_LANGUAGE 1005                         // Language
#define IDS_SOUND_EFFECTS 1007                    // Play sounds
#define IDS_GOOFY_MODE 1032                       // Goofy mode
#define IDS_INDENT_ITEMS 1248                     // Indent items
#define IDS_DPAD_ENABLED 1349                     // Use the D-pad
#define IDS_DPAD_GROUP 1350                       // Settings for
#define IDS_DPAD_GROUP_NAVIGATION 1351            // Full navigation
#define IDS_DPAD_GROUP_SCROLLING 1352             // Scrolling
#define IDS_DPAD_ACTION 1353                      // Action key
#define IDS_DPAD_ACTION_OPEN 1354                 // Open
#define IDS_DPAD_ACTION_PREVIEW 1355              // Preview
#define IDS_DPAD_ACTION_MENU 1356                 // Show the menu
#define IDS_DPAD_DOUBLE_PRESS_SWITCHES_TABS 1357  // Double press switches tabs
#define IDS_DPAD_SCROLLING 1358                   // Up/down keys
#define IDS_DPAD_SCROLL_LINE 842                  // Scroll a line
#define IDS_DPAD_SCROLL_ITEM 843                  // Scroll an item
#define IDS_DPAD_SCROLL_PAGE 844                  // Scroll a page
#define IDS_DPAD_EXCLUSIVE 1251                   // D-pad for Tidewell only
#define IDS_DOUBLE_TAP_SCROLLS 1008               // Scroll with a double tap
#define IDS_SCROLL_WHOLE_PAGES 1009               // Scroll whole pages
#define IDS_VGA_MODE 1029                         // VGA mode (double size)
#define IDS_THIN_LINES 1033                       // Draw thin lines
#define IDS_REMOVE_HIGHLIGHT 1028                 // Do not highlight the selection
#define IDS_LOADING_DELAY 1252                    // Load delay (s)

// Messages.
#define IDS_MESSAGES_PREVIEW_MARKS_READ 1253  // Mark as read after a preview

// Special events.
#define IDS_EVENTS_TAB_EVENTS 1042        // Events
#define IDS_EVENTS_TAB_FILTERS 1043       // Filters
#define IDS_EVENTS_AHEAD 1046             // Look ahead
#define IDS_EVENTS_AHEAD_WEEK 117         // 7 days
#define IDS_EVENTS_AHEAD_TWO_WEEKS 118    // 14 days
#define IDS_EVENTS_AHEAD_MONTH 119        // 30 days
#define IDS_EVENTS_ALERT 1047             // Alert days
#define IDS_EVENTS_DATE_FORMAT 1048       // Date format
#define IDS_EVENTS_DATE_AS_DEVICE 1049    // As on the device
#define IDS_EVENTS_SEARCH_DAYS 1044       // Days to search
#define IDS_EVENTS_FILTER_ALERT 1045      // Filter alert days
#define IDS_EVENTS_EXTRA_CATEGORY_1 1038  // Extra category 1
#define IDS_EVENTS_EXTRA_CATEGORY_2 1039  // Extra category 2
#define IDS_EVENTS_EXTRA_CATEGORY_3 1040  // Extra category 3
#define IDS_EVENTS_EXTRA_CATEGORY_4 1041  // Extra category 4

// PIM.
#define IDS_PIM_TAB_PROGRAM 916                 // Program
#define IDS_PIM_TAB_OPTIONS 917                 // Options
#define IDS_PIM_PROGRAM 918                     // PIM program
#define IDS_PIM_BUILT_IN 106                    // Built-in PIM
#define IDS_PIM_COMPANION 1646                  // Velmont Calendar
#define IDS_PIM_POCKET_INFORMANT 107            // Pocket Informant
#define IDS_PIM_AGENDA_FUSION 139               // Agenda Fusion
#define IDS_PIM_AGENDA_ONE 108                  // Agenda One
#define IDS_PIM_APPOINTMENT_REMINDER 1540       // Appointment reminder
#define IDS_PIM_TASK_REMINDER 1541              // Task reminder
#define IDS_PIM_NO_REMINDER 1542                // None
#define IDS_PIM_MINUTES 1543                    // minutes
#define IDS_PIM_HOUR 1544                       // hour
#define IDS_PIM_HOURS 1545                      // hours
#define IDS_PIM_DAY 1546                        // day
#define IDS_PIM_OVERRIDE_ICONS 919              // Use Tidewell's category icons
#define IDS_PIM_OVERRIDE_COLORS 920             // Use Tidewell's category colors
#define IDS_PIM_LEAVE_FUSION_RUNNING 921        // Leave Agenda Fusion running
#define IDS_PIM_HIDE_ABC 922                    // Hide A, B, C priorities
#define IDS_PIM_COMPANION_MISSING 1647          // Velmont Calendar is not installed on this device.
#define IDS_PIM_COMPANION_MISSING_CAPTION 1648  // Not installed

// Tabs.
#define IDS_TABS_TAB_ORDER 1637            // Order
#define IDS_TABS_TAB_DEFAULT 1402          // Default tab
#define IDS_TABS_POSITION 1665             // Position
#define IDS_TABS_POSITION_LEFT 1666        // Left
#define IDS_TABS_POSITION_TOP 1667         // Top
#define IDS_TABS_POSITION_RIGHT 1668       // Right
#define IDS_TABS_POSITION_BOTTOM 1669      // Bottom
#define IDS_TABS_STYLE 1670                // Style
#define IDS_TABS_STYLE_TEXT 1671           // Text
#define IDS_TABS_STYLE_ICONS 1672          // Icons
#define IDS_TABS_GESTURES 1633             // Gestures
#define IDS_TABS_GESTURES_OFF 1634         // Off
#define IDS_TABS_GESTURES_ON 1635          // On
#define IDS_TABS_EFFECT 1638               // Effect
#define IDS_TABS_EFFECT_NONE 1639          // None
#define IDS_TABS_EFFECT_SLIDE 1640         // Slide
#define IDS_TABS_ADD 1053                  // Add
#define IDS_TABS_REMOVE 1052               // Remove
#define IDS_TABS_TIME_OUT 1414             // Time-out
#define IDS_TABS_TIME_OUT_1_MINUTE 1422    // 1 minute
#define IDS_TABS_TIME_OUT_2_MINUTES 1423   // 2 minutes
#define IDS_TABS_TIME_OUT_5_MINUTES 1424   // 5 minutes
#define IDS_TABS_TIME_OUT_10_MINUTES 1425  // 10 minutes
#define IDS_TABS_TIME_OUT_30_MINUTES 1426  // 30 minutes
#define IDS_TABS_TIME_OUT_1_HOUR 1427      // 1 hour
#define IDS_TABS_DEFAULT_TAB 1415          // Default tab
#define IDS_TABS_DEFAULT_AT_START 1437     // Start with the default tab

// Hosted Today plug-ins.
#define IDS_PLUGIN_DISABLE_QUESTION 1050  // It is still on the Today screen. Disable it there?
#define IDS_PLUGIN_DISABLE_CAPTION 1051   // Today plug-in
#define IDS_PLUGIN_ALREADY_HOSTED 1058    // This plug-in has a tab already.
#define IDS_PLUGIN_ALREADY_HOSTED_CAPTION 1059  // Already added
#define IDS_PLUGIN_PICK 1132   // Select the Today plug-in to show in a tab of its own.
#define IDS_PLUGIN_LABEL 1133  // Plug-in

// Language packs: the name under which a pack is offered, in its own language.
#define IDS_LANGUAGE_NAME 378  // English

// The preview, and the choice of its icons.
#define IDS_SAMPLE_APPOINTMENT 631  // Meeting
#define IDS_SAMPLE_LOCATION 632     // Room 2
#define IDS_SAMPLE_TASK 1479        // Write the report
#define IDS_ICON_NONE 1087          // None
#define IDS_ICON_REMINDER 2040      // Reminder
#define IDS_ICON_PRIVATE 2041       // Private
#define IDS_ICON_RECURRING 2042     // Recurring
#define IDS_ICON_NOTE 2043          // Note
#define IDS_ICON_CATEGORY 2044      // Category
#define IDS_ICON_IMPORTANCE 2045    // Importance
#define IDS_ICON_ATTACHED 2046      // Own icon
#define IDS_ICON_ATTENDEES 2047     // Attendees
#define IDS_ICON_LINK 2048          // Link
#define IDS_ICON_SET 2049           // Icon set

// Own texts, from 2000 on: dialogs whose texts have no number elsewhere.
#define IDS_CANCEL 2000             // Cancel
#define IDS_SELECT 2001             // Select
#define IDS_FILE_NAME 2002          // File Name
#define IDS_FILE_EXTENSION 2003     // Extension
#define IDS_FILE_NAME_MISSING 2004  // File name value is missing
#define IDS_FILE_NAME_ILLEGAL 2005  // File name include illegal characters
#define IDS_FILE_NAME_ERROR 2006    // File Name Error
#define IDS_FOLDER_UP 2010          // Up one level
#define IDS_FOLDER_EMPTY 2011       // No entries
#define IDS_FOLDER_UNREADABLE 2012  // This folder cannot be read.
#define IDS_FOLDER_ROOT 2013        // My Device
#define IDS_START_FAILED 2020       // The start failed and nothing was changed: restart the device.
#define IDS_OK 2060                 // OK
#define IDS_YES 2061                // Yes
#define IDS_NO 2062                 // No

// Export and import: what follows the texts above, and the questions before an import. A path, a
// name or a key follows the texts that end without a full stop, in quotes.
#define IDS_EXPORT_NOT_WRITTEN 2030      // It could not be written. An earlier file is unchanged.
#define IDS_IMPORT_NOTHING_CHANGED 2031  // Nothing was changed.
#define IDS_IMPORT_IN_PART 2032          // The settings were replaced in part.
#define IDS_IMPORT_GO_BACK 2033          // To go back, import
#define IDS_IMPORT_OUTSIDE 2034          // This file also changes settings of other programs, first
#define IDS_IMPORT_OUTSIDE_QUESTION 2035  // There is no copy of these. Import all the same?
#define IDS_IMPORT_NO_COPY_QUESTION 2036  // Not all settings could be copied. Import all the same?
#define IDS_IMPORT_QUESTION_CAPTION 2037  // Import Settings
