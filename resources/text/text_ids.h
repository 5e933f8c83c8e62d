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

// The search bar of contacts and notes.
#define IDS_SEARCH_BAR 1407           // Search bar
#define IDS_SEARCH_BAR_NONE 1408      // None
#define IDS_SEARCH_BAR_LATIN 1409     // Latin
#define IDS_SEARCH_BAR_CYRILLIC 1410  // Cyrillic
#define IDS_SEARCH_BAR_HEBREW 1411    // Hebrew
#define IDS_SEARCH_BAR_GREEK 1412     // Greek
#define IDS_SEARCH_BAR_ALL 1413       // All alphabets
#define IDS_SEARCH_BAR_CHOOSE 1440    // Alphabets...
#define IDS_SEARCH_BAR_CUSTOM 2550    // Custom alphabet

// Contacts.
#define IDS_ACTION_KEY_CALLS 1476               // Call
#define IDS_CONTACTS_CATEGORY_COLOR 1488        // Names in their category's color
#define IDS_CONTACTS_TAB_COLUMNS 1063           // Columns
#define IDS_CONTACTS_LAYOUT 1448                // Layout
#define IDS_CONTACTS_LAYOUT_COLUMNS 1445        // Two columns
#define IDS_CONTACTS_LAYOUT_LINES 1446          // Two lines
#define IDS_CONTACTS_LAYOUT_PICTURES 1447       // Pictures
#define IDS_CONTACTS_PHONE_WIDTH 1449           // Phone column
#define IDS_CONTACTS_HIDE_WITHOUT_PICTURE 1450  // Hide contacts without picture

// Notes.
#define IDS_NOTES_TAB_TYPES 1494              // File types
#define IDS_NOTES_TAB_FOLDERS 1492            // Folders
#define IDS_NOTES_PREVIEW 1403                // Preview
#define IDS_NOTES_PREVIEW_NEVER 1404          // Never
#define IDS_NOTES_PREVIEW_SELECTED 1405       // When selected
#define IDS_NOTES_PREVIEW_ALWAYS 1406         // Always
#define IDS_NOTES_TYPE_INK 1495               // Notes (pwi)
#define IDS_NOTES_TYPE_RECORDINGS 1496        // Recordings (wav)
#define IDS_NOTES_TYPE_TEXTS 1497             // Text files (txt)
#define IDS_NOTES_TYPE_DOCUMENTS 1498         // Word documents (doc, docx)
#define IDS_NOTES_TYPE_WORKBOOKS 1499         // Excel workbooks (xls, xlsx)
#define IDS_NOTES_TYPE_LISTS 1504             // Listwise lists
#define IDS_NOTES_FOLDERS 1493                // Folders of notes
#define IDS_NOTES_ADD_FOLDER 1517             // Add
#define IDS_NOTES_REMOVE_FOLDER 860           // Remove
#define IDS_NOTES_FOLDER_LISTED 1519          // This folder is in the list already.
#define IDS_NOTES_FOLDER_LISTED_CAPTION 1518  // Already added

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

// The Calendar page: its tabs, and the rows of the first two.
#define IDS_CAL_TAB_APPOINTMENTS 636         // Appointments
#define IDS_CAL_TAB_TASKS 637                // Tasks
#define IDS_CAL_TAB_DAYS 638                 // Days
#define IDS_PAGE_TAB_ICONS 639               // Icons
#define IDS_CAL_TAB_MONTH 640                // Month
#define IDS_CAL_TAB_MAIL 641                 // Mail
#define IDS_CAL_TAB_WEATHER 1530             // Weather
#define IDS_CAL_DAYS_SHOWN 713               // Days shown
#define IDS_CAL_FIRST_WEEK 658               // First week
#define IDS_CAL_FIRST_WEEK_SYSTEM 716        // As the system
#define IDS_CAL_FIRST_WEEK_JANUARY_1 717     // With January 1
#define IDS_CAL_FIRST_WEEK_FULL 718          // First full week
#define IDS_CAL_FIRST_WEEK_4_DAYS 719        // First of 4 days
#define IDS_CAL_TEXT_COLOR 720               // Text color
#define IDS_CAL_TEXT_COLOR_OWN 721           // Own color
#define IDS_CAL_TEXT_COLOR_CATEGORY 722      // The category's
#define IDS_CAL_TEXT_COLOR_STATUS 723        // The status's
#define IDS_CAL_HIDE_EMPTY_GROUPS 1525       // Hide empty days
#define IDS_CAL_HIDE_EMPTY_LINES 1526        // Hide the line of empty days
#define IDS_CAL_SPECIAL_EVENTS 1213          // Show special events
#define IDS_CAL_SORT_TASKS 1451              // Sort tasks among appointments
#define IDS_CAL_PASSED 1644                  // Passed ones
#define IDS_CAL_PASSED_SHOWN 112             // Shown
#define IDS_CAL_PASSED_HIDDEN 114            // Hidden
#define IDS_CAL_LEADING_RECTS 1645           // Color bars
#define IDS_CAL_LEADING_RECTS_NONE 730       // None
#define IDS_CAL_LEADING_RECTS_STATUS 731     // By status
#define IDS_CAL_LEADING_RECTS_CATEGORY 732   // By category
#define IDS_CAL_CONFLICTS 662                // Conflicts
#define IDS_CAL_CONFLICTS_NOT_MARKED 735     // Not marked
#define IDS_CAL_CONFLICTS_BAR 736            // Red bar
#define IDS_CAL_CONFLICTS_TEXT 737           // Red text
#define IDS_CAL_YEARLY_COUNTERS 726          // Count the years of anniversaries
#define IDS_CAL_HIDE_ALLDAY_ICON 727         // Hide the icon of all-day items
#define IDS_CAL_LEFT_ICON_1 645              // Left icon 1
#define IDS_CAL_LEFT_ICON_2 646              // Left icon 2
#define IDS_CAL_RIGHT_ICONS 649              // Right icons
#define IDS_CAL_TASK_LEFT_ICON_1 647         // Tasks: left 1
#define IDS_CAL_TASK_LEFT_ICON_2 648         // Tasks: left 2
#define IDS_CAL_TASK_RIGHT_ICONS 1210        // Tasks: right
#define IDS_CAL_WEATHER_MISSING 1537         // The weather line needs Velmont Weather, which is not installed on this device.
#define IDS_CAL_WEATHER_LAYOUT 1533          // Layout
#define IDS_CAL_WEATHER_ONE_LINE 1531        // One line
#define IDS_CAL_WEATHER_TWO_LINES 1532       // Two lines
#define IDS_CAL_WEATHER_ICONS 1538           // Icons
#define IDS_CAL_WEATHER_ICONS_AND_TEXT 1539  // Icons and text
#define IDS_CAL_WEATHER_TAP 1536             // Tap opens
#define IDS_CAL_WEATHER_FORECAST 1534        // The forecast
#define IDS_CAL_WEATHER_PROGRAM 1535         // The program

// The tasks among the appointments: the option, its caption or label, its tip, its choices.
#define IDS_CAL_TASKS 663                   // Tasks
#define IDS_CAL_TASKS_CAPTION 738           // Show tasks in the calendar
#define IDS_CAL_TASKS_TIP 739               // Tasks stand among the appointments of the day on which they are due.
#define IDS_CAL_OVERDUE 664                 // Overdue tasks
#define IDS_CAL_OVERDUE_CAPTION 740         // Show overdue tasks
#define IDS_CAL_OVERDUE_TIP 741             // Tasks whose due date has passed stand under today until completed.
#define IDS_CAL_FUTURE 665                  // Future tasks
#define IDS_CAL_FUTURE_CAPTION 742          // Show future tasks
#define IDS_CAL_FUTURE_TIP 743              // Tasks that are due later stand under the day on which they are due.
#define IDS_CAL_UNDATED 666                 // Tasks without a date
#define IDS_CAL_UNDATED_CAPTION 744         // Show tasks without a date
#define IDS_CAL_UNDATED_TIP 745             // Tasks without a due date stand under today.
#define IDS_CAL_COMPLETED 667               // Completed tasks
#define IDS_CAL_COMPLETED_LABEL 1225        // Show them for
#define IDS_CAL_COMPLETED_TIP 1226          // The days under which tasks stay when they are completed.
#define IDS_CAL_COMPLETED_NO_DAY 1227       // No day
#define IDS_CAL_COMPLETED_TODAY 1228        // Today
#define IDS_CAL_COMPLETED_FROM_TODAY 1229   // From today on
#define IDS_CAL_COMPLETED_ALL 1230          // All days
#define IDS_CAL_PAST_COMPLETED 668          // Tasks completed earlier
#define IDS_CAL_PAST_COMPLETED_CAPTION 748  // Show those completed earlier
#define IDS_CAL_PAST_COMPLETED_TIP 749      // Completed tasks are shown also when their due date has passed.
#define IDS_CAL_FUTURE_LIMIT 1214           // How far ahead
#define IDS_CAL_FUTURE_LIMIT_LABEL 1231     // Ahead
#define IDS_CAL_FUTURE_LIMIT_TIP 1232       // Future tasks are shown this far ahead.
#define IDS_FUTURE_NO_LIMIT 1077            // No limit
#define IDS_FUTURE_1_DAY 1078               // 1 day
#define IDS_FUTURE_3_DAYS 1079              // 3 days
#define IDS_FUTURE_1_WEEK 1080              // 1 week
#define IDS_FUTURE_2_WEEKS 1081             // 2 weeks
#define IDS_FUTURE_1_MONTH 1082             // 1 month
#define IDS_FUTURE_3_MONTHS 1083            // 3 months
#define IDS_FUTURE_6_MONTHS 1084            // 6 months
#define IDS_CAL_TASK_ORDER 669              // Order of the tasks
#define IDS_CAL_TASK_ORDER_LABEL 750        // Sort by
#define IDS_CAL_TASK_ORDER_TIP 751          // The order in which the tasks of a day stand.
#define IDS_CAL_TASK_ORDER_DUE 752          // Due date
#define IDS_CAL_TASK_ORDER_START 753        // Start date
#define IDS_CAL_TASK_ORDER_IMPORTANCE 754   // Importance
#define IDS_CAL_TASK_ORDER_COMPLETION 755   // Completion
#define IDS_CAL_TASK_ORDER_ACTIVITY 756     // Activity
#define IDS_CAL_TASK_ORDER_SUBJECT 757      // Subject
#define IDS_CAL_TASK_ORDER_CATEGORY 758     // Category
#define IDS_CAL_WEEKENDS 670                // Active tasks at weekends
#define IDS_CAL_WEEKENDS_LABEL 759          // Leave out
#define IDS_CAL_WEEKENDS_TIP 760            // On these days active tasks are not shown.
#define IDS_CAL_WEEKENDS_NONE 761           // No day
#define IDS_CAL_WEEKENDS_SATURDAY 762       // Saturday
#define IDS_CAL_WEEKENDS_SUNDAY 763         // Sunday
#define IDS_CAL_WEEKENDS_BOTH 764           // Both days
#define IDS_CAL_TASK_DATE 671               // Date of tasks
#define IDS_CAL_TASK_DATE_LABEL 765         // Date format
#define IDS_CAL_TASK_DATE_TIP 766           // How the due date of a task is written.
#define IDS_CAL_ACTIVE 672                  // Active tasks
#define IDS_CAL_ACTIVE_CAPTION 767          // Show active tasks
#define IDS_CAL_ACTIVE_TIP 768              // A task that has begun stands under every day until it is due.
#define IDS_CAL_TASKS_FIRST 673             // Tasks before appointments
#define IDS_CAL_TASKS_FIRST_CAPTION 769     // Tasks before appointments
#define IDS_CAL_TASKS_FIRST_TIP 770         // The tasks of a day stand above its appointments.
#define IDS_CAL_CONFIRM 674                 // Confirmation
#define IDS_CONFIRM_COMPLETION 771          // Ask before completing a task
#define IDS_CAL_CONFIRM_TIP 772             // Before a tap on its box completes a task, you are asked.

// The days, their titles and time lines.
#define IDS_CAL_DAY_TITLE 675            // Date in titles
#define IDS_CAL_DAY_TITLE_LABEL 773      // Date format
#define IDS_CAL_DAY_TITLE_TIP 774        // How the date is written in the title of a day.
#define IDS_CAL_DAY_DIVIDER 676          // Line between days
#define IDS_CAL_DAY_DIVIDER_LABEL 775    // Line
#define IDS_CAL_DAY_DIVIDER_TIP 776      // The line that divides one day from the next.
#define IDS_CAL_TIME_LINES 677           // Time lines
#define IDS_CAL_TIME_LINES_LABEL 777     // Time lines
#define IDS_CAL_TIME_LINES_TIP 778       // A time line shows which hours of a day are busy.
#define IDS_CAL_TIME_LINES_OFF 779       // Off
#define IDS_CAL_TIME_LINES_TODAY 780     // Today only
#define IDS_CAL_TIME_LINES_ALL 781       // All days
#define IDS_CAL_TOMORROW 678             // Title of tomorrow
#define IDS_CAL_TOMORROW_CAPTION 782     // Call the next day tomorrow
#define IDS_CAL_TOMORROW_TIP 783         // The title of the next day says so instead of the date alone.
#define IDS_CAL_COUNTERS 679             // Counters
#define IDS_CAL_COUNTERS_CAPTION 784     // Show counters in titles
#define IDS_CAL_COUNTERS_TIP 785         // A title tells how many entries its day has.
#define IDS_CAL_SMART_FOLDING 680        // Smart folding
#define IDS_SMART_FOLDING 786            // Use smart folding
#define IDS_CAL_SMART_FOLDING_TIP 787    // Opening one group folds up the one that was open before.
#define IDS_CAL_WRAP 681                 // Long titles
#define IDS_WRAP_TITLES 788              // Wrap titles
#define IDS_CAL_WRAP_TIP 789             // A title too long for its line goes on in the next, or is cut.
#define IDS_WRAP_ALWAYS 790              // Always
#define IDS_WRAP_NEVER 791               // Never
#define IDS_WRAP_SELECTED 792            // When selected
#define IDS_CAL_FREE 682                 // Free times
#define IDS_CAL_FREE_CAPTION 797         // Leave out free appointments
#define IDS_CAL_FREE_TIP 798             // Appointments marked as free do not count in the time lines.
#define IDS_CAL_TODAY_TITLE 685          // Title of today
#define IDS_CAL_TODAY_TITLE_CAPTION 801  // Always show today's title
#define IDS_CAL_TODAY_TITLE_TIP 802      // Today has its title also when it has no entries.
#define IDS_CAL_TODAY_DATE 686           // Date of today
#define IDS_CAL_TODAY_DATE_CAPTION 803   // Add the date to today's title
#define IDS_CAL_TODAY_DATE_TIP 804       // The title of today tells the date as well.
#define IDS_CAL_DAY_COUNT 687            // Days until then
#define IDS_CAL_DAY_COUNT_CAPTION 805    // Add the number of days
#define IDS_CAL_DAY_COUNT_TIP 806        // A title tells in how many days its day comes.
#define IDS_CAL_WEEK_NUMBER 688          // Week number
#define IDS_CAL_WEEK_NUMBER_CAPTION 807  // Add the week number
#define IDS_CAL_WEEK_NUMBER_TIP 808      // A title tells the number of its week.
#define IDS_CAL_LINES_START 1215         // Start of time lines
#define IDS_CAL_LINES_START_LABEL 799    // Start
#define IDS_CAL_LINES_START_TIP 800      // The time of day at which time lines begin.
#define IDS_CAL_LINES_LENGTH 1216        // Length of time lines
#define IDS_CAL_LINES_LENGTH_LABEL 1234  // Hours
#define IDS_CAL_LINES_LENGTH_TIP 1235    // How many hours time lines cover.
#define IDS_CAL_LINES_HEIGHT 1217        // Height of time lines
#define IDS_CAL_LINES_HEIGHT_LABEL 1189  // Height
#define IDS_CAL_LINES_HEIGHT_TIP 1190    // How high time lines are drawn.
#define IDS_CAL_LINES_WIDTH 1218         // Width of time lines
#define IDS_CAL_LINES_WIDTH_LABEL 1191   // Width
#define IDS_CAL_LINES_WIDTH_TIP 1192     // How wide time lines are drawn.

// The monthly calendar that pops up.
#define IDS_CAL_MONTH_TAP 689                // Tap on a day
#define IDS_CAL_MONTH_TAP_LABEL 809          // Opens
#define IDS_CAL_MONTH_TAP_TIP 810            // What a tap on a day of the monthly calendar opens.
#define IDS_CAL_MONTH_TAP_DAY 811            // The day
#define IDS_CAL_MONTH_TAP_WEEK 812           // The week
#define IDS_CAL_MONTH_TAP_MONTH 813          // The month
#define IDS_CAL_MONTH_TAP_NEW 814            // A new entry
#define IDS_CAL_MONTH_DATE 690               // Dates
#define IDS_CAL_MONTH_DATE_LABEL 815         // Date format
#define IDS_CAL_MONTH_DATE_TIP 816           // How dates are written in the monthly calendar.
#define IDS_CAL_WEEK_START 691               // First day of the week
#define IDS_CAL_WEEK_START_LABEL 1193        // First day
#define IDS_CAL_WEEK_START_TIP 1194          // With this day a week of the monthly calendar begins.
#define IDS_CAL_WORK_START 1219              // First working day
#define IDS_CAL_WORK_START_LABEL 1195        // First day
#define IDS_CAL_WORK_START_TIP 1196          // With this day the working week begins.
#define IDS_CAL_MONTH_WEEKS 692              // Week numbers
#define IDS_CAL_MONTH_WEEKS_CAPTION 819      // Show week numbers
#define IDS_CAL_MONTH_WEEKS_TIP 820          // The number of each week stands beside it.
#define IDS_CAL_MONTH_LINES 1220             // Time lines
#define IDS_CAL_MONTH_LINES_LABEL 1197       // Time lines
#define IDS_CAL_MONTH_LINES_TIP 1198         // A time line in each day shows which hours are busy.
#define IDS_CAL_MONTH_LINES_OFF 1207         // Off
#define IDS_CAL_MONTH_LINES_TODAY 1208       // Today only
#define IDS_CAL_MONTH_LINES_ALL 1209         // All days
#define IDS_CAL_MONTH_ICONS 1221             // Category icons
#define IDS_CAL_MONTH_ICONS_CAPTION 1199     // Show category icons
#define IDS_CAL_MONTH_ICONS_TIP 1200         // The icons of its entries' categories stand in each day.
#define IDS_CAL_MONTH_ICON_SIZE 1222         // Size of the icons
#define IDS_CAL_MONTH_ICON_SIZE_LABEL 1201   // Pixels
#define IDS_CAL_MONTH_ICON_SIZE_TIP 1202     // How large the icons of the monthly calendar are.
#define IDS_CAL_MONTH_DPAD 1455              // D-pad
#define IDS_CAL_MONTH_DPAD_TIP 1456          // What the D-pad moves through in the monthly calendar.
#define IDS_CAL_MONTH_DPAD_OFF 1452          // Off
#define IDS_CAL_MONTH_DPAD_MONTHS 1453       // Months
#define IDS_CAL_MONTH_DPAD_DAYS 1454         // Days
#define IDS_CAL_PINNED 1223                  // Pinned calendar
#define IDS_CAL_PINNED_CAPTION 1203          // Pin the monthly calendar
#define IDS_CAL_PINNED_TIP 1204              // The calendar stays on the Today screen. It needs a height of %d.
#define IDS_CAL_PINNED_TOO_LOW 1205          // This needs a height of %d or more: set it on the General page first.
#define IDS_CAL_PINNED_TOO_LOW_CAPTION 1206  // Not enough height

// The line of mail.
#define IDS_CAL_MAIL 706                  // Mail line
#define IDS_CAL_MAIL_CAPTION 821          // Show mail in the calendar
#define IDS_CAL_MAIL_TIP 822              // A line of the calendar tells how many messages there are.
#define IDS_CAL_MAIL_HIDE 707             // Without messages
#define IDS_CAL_MAIL_HIDE_CAPTION 823     // Hide it without messages
#define IDS_CAL_MAIL_HIDE_TIP 824         // The line is hidden as long as no message is unread.
#define IDS_CAL_MAIL_FORMAT 708           // Text of the line
#define IDS_CAL_MAIL_FORMAT_LABEL 825     // Tells
#define IDS_CAL_MAIL_FORMAT_TIP 826       // What the line tells of the messages.
#define IDS_CAL_MAIL_UNREAD 827           // Unread
#define IDS_CAL_MAIL_UNREAD_AND_ALL 828   // Unread and all
#define IDS_CAL_MAIL_ACCOUNTS 829         // Each account
#define IDS_CAL_MAIL_ACCOUNTS_UNREAD 830  // Accounts, unread
#define IDS_CAL_MAIL_PROGRAM 709          // Mail program
#define IDS_CAL_MAIL_PROGRAM_LABEL 831    // Program
#define IDS_CAL_MAIL_PROGRAM_TIP 832      // A tap on the line opens this program.
#define IDS_CAL_MAIL_PROGRAM_SYSTEM 833   // Messaging
#define IDS_CAL_MAIL_PROGRAM_OTHER 834    // Another one
#define IDS_CAL_MAIL_OTHER 710            // Other mail program
#define IDS_CAL_MAIL_OTHER_TIP 835        // A tap on the line opens this program, when another one is chosen.
#define IDS_CAL_MAIL_TITLE 711            // Title under today
#define IDS_CAL_MAIL_TITLE_CAPTION 836    // No title under today
#define IDS_CAL_MAIL_TITLE_TIP 837        // Under today the line of mail has no title of its own.
#define IDS_CAL_MAIL_COUNTER 712          // Counter in the title
#define IDS_CAL_MAIL_COUNTER_CAPTION 838  // Show the counter
#define IDS_CAL_MAIL_COUNTER_TIP 839      // The title tells the number of unread messages.

// What else the calendar has.
#define IDS_CAL_TWO_DIGITS 693             // Two-digit hours
#define IDS_CAL_TWO_DIGITS_CAPTION 840     // Write hours with two digits
#define IDS_CAL_TWO_DIGITS_TIP 841         // Times before ten o'clock begin with a zero.
#define IDS_CAL_SKIN 694                   // Skin of the folded calendar
#define IDS_CAL_SKIN_CAPTION 845           // Skin the folded calendar
#define IDS_CAL_SKIN_TIP 846               // The skin is shown also when all days are folded up.
#define IDS_CAL_NIGHT 696                  // End of the night
#define IDS_CAL_NIGHT_LABEL 849            // Until
#define IDS_CAL_NIGHT_TIP 850              // What ends before this time belongs to the day before.
#define IDS_CAL_OVERDUE_TITLE 697          // Title of overdue tasks
#define IDS_CAL_OVERDUE_TITLE_CAPTION 851  // Hide this title
#define IDS_CAL_OVERDUE_TITLE_TIP 852      // Overdue tasks stand under today without a title of their own.
#define IDS_CAL_UNDATED_TITLE 698          // Title of tasks without a date
#define IDS_CAL_UNDATED_TITLE_CAPTION 853  // Hide this title
#define IDS_CAL_UNDATED_TITLE_TIP 854      // Tasks without a date stand under today without a title of their own.
#define IDS_CAL_OWN_FORMAT 699             // Own date format
#define IDS_CAL_OWN_FORMAT_TIP 855         // The date in titles, such as ddd, d MMM. Empty: as on the Days tab.
#define IDS_CAL_TITLES_ORDER 1224          // Order of the titles
#define IDS_CAL_TITLE_OVERDUE 700          // Overdue tasks
#define IDS_CAL_TITLE_UNDATED 701          // Tasks without a date
#define IDS_CAL_TITLE_TODAY 702            // Today
#define IDS_CAL_TITLE_MAIL 703             // Mail
#define IDS_CAL_TITLE_WEATHER 704          // Weather
#define IDS_CAL_TITLE_EVENTS 705           // Special events

// The Tasks page.
#define IDS_TASKS_TAB_SHOWN 2100            // Tasks
#define IDS_TASKS_TAB_DATES 2101            // Dates
#define IDS_TASKS_HIDE_COMPLETED 2102       // Hide completed tasks
#define IDS_TASKS_HIDE_PAST_COMPLETED 2103  // Hide those completed earlier
#define IDS_TASKS_HIDE_UNDATED 2104         // Hide tasks without a date
#define IDS_TASKS_NO_UNDATED_TEXT 2105      // Nothing before tasks without a date
#define IDS_TASKS_CUSTOM_DATE 2106          // Use own date formats
#define IDS_TASKS_CUSTOM_STRUCTURE 2107     // Dates shown
#define IDS_TASKS_CUSTOM_START 2108         // Start date
#define IDS_TASKS_CUSTOM_DUE 2109           // Due date
#define IDS_TASKS_CUSTOM_BOTH 2110          // Both
#define IDS_TASKS_START_FORMAT 2111         // Start format
#define IDS_TASKS_END_FORMAT 2112           // Due format

// The colour picker.
#define IDS_PICKER_TITLE 2200         // Choose Color
#define IDS_PICKER_RED 2201           // Red
#define IDS_PICKER_GREEN 2202         // Green
#define IDS_PICKER_BLUE 2203          // Blue
#define IDS_PICKER_CHANNELS 2204      // RGB Values
#define IDS_PICKER_SWATCHES 2205      // Picker
#define IDS_PICKER_DEFAULT 2206       // Default
#define IDS_PICKER_OUT_OF_RANGE 2207  // Valid values are between 0-255
#define IDS_PICKER_INVALID 2208       // Invalid value
#define IDS_PICKER_SELECTED 2209      // Selected color

// The font dialog.
#define IDS_FONT_TITLE 2210        // Font Style
#define IDS_FONT_SIZE 1121         // Size
#define IDS_FONT_BOLD 1118         // Bold
#define IDS_FONT_ITALIC 1117       // Italic
#define IDS_FONT_UNDERLINE 1119    // Underlined
#define IDS_FONT_STRIKE_OUT 1120   // Struck out
#define IDS_FONT_COLOR 1116        // Color
#define IDS_FONT_CHOOSE_COLOR 861  // Pick
#define IDS_FONT_OK 1114           // OK
#define IDS_FONT_CANCEL 1115       // Cancel

// The Colors page: its colors, each followed by its description further down, and the schemes.
#define IDS_COLORS_TAB_COLORS 1236           // Colors
#define IDS_COLORS_TAB_SCHEMES 1237          // Schemes
#define IDS_COLOR_CHOOSE 882                 // Select
#define IDS_COLOR_SEPARATOR 883              // Line below the tabs
#define IDS_COLOR_SHADOW 884                 // Shadow of texts
#define IDS_COLOR_GENERAL 885                // Texts
#define IDS_COLOR_HIGHLIGHT 886              // Selection: background
#define IDS_COLOR_HIGHLIGHT_TEXT 887         // Selection: text
#define IDS_COLOR_TIME_LINES 888             // Time lines: background
#define IDS_COLOR_TIME_LINE_ENTRIES 889      // Time lines: busy hours
#define IDS_COLOR_CALENDAR_LINE 890          // Line between days
#define IDS_COLOR_MONTH 891                  // Month: background
#define IDS_COLOR_MONTH_TODAY 892            // Month: today
#define IDS_COLOR_MONTH_SELECTED 893         // Month: selected day
#define IDS_COLOR_TASKS_LINE 894             // Line between tasks
#define IDS_COLOR_FREE 895                   // Status: free
#define IDS_COLOR_BUSY 896                   // Status: busy
#define IDS_COLOR_TENTATIVE 897              // Status: tentative
#define IDS_COLOR_OUT_OF_OFFICE 898          // Status: out of office
#define IDS_COLOR_SEPARATOR_TIP 899          // The line that divides the tabs from what they show.
#define IDS_COLOR_SHADOW_TIP 900             // The shadow of texts, where the Fonts page gives them one.
#define IDS_COLOR_GENERAL_TIP 901            // All texts that have no color of their own.
#define IDS_COLOR_HIGHLIGHT_TIP 902          // The background of the selected item.
#define IDS_COLOR_HIGHLIGHT_TEXT_TIP 903     // The text of the selected item.
#define IDS_COLOR_TIME_LINES_TIP 904         // The hours of a time line that are free.
#define IDS_COLOR_TIME_LINE_ENTRIES_TIP 905  // The busy hours of a time line, where their category has no color.
#define IDS_COLOR_CALENDAR_LINE_TIP 906      // The line that divides one day of the calendar from the next.
#define IDS_COLOR_MONTH_TIP 907              // The background of the monthly calendar.
#define IDS_COLOR_MONTH_TODAY_TIP 908        // Today's date in the monthly calendar.
#define IDS_COLOR_MONTH_SELECTED_TIP 909     // The selected date in the monthly calendar.
#define IDS_COLOR_TASKS_LINE_TIP 910         // The line that divides one group of tasks from the next.
#define IDS_COLOR_FREE_TIP 911               // The mark of appointments whose time is shown as free.
#define IDS_COLOR_BUSY_TIP 912               // The mark of appointments whose time is shown as busy.
#define IDS_COLOR_TENTATIVE_TIP 913          // The mark of appointments that are not certain yet.
#define IDS_COLOR_OUT_OF_OFFICE_TIP 914      // The mark of appointments away from the office.
#define IDS_SCHEMES_TIP 862                  // Save the present colors and fonts as a scheme, or apply one.
#define IDS_SCHEME_APPLY 879                 // Apply
#define IDS_SCHEME_DELETE 880                // Delete
#define IDS_SCHEME_SAVE 881                  // Save
#define IDS_SCHEME_SELECT 863                // Select a scheme in the list first.
#define IDS_SCHEME_SELECT_CAPTION 864        // Nothing selected
#define IDS_SCHEME_DELETE_QUESTION 865       // Delete the selected scheme?
#define IDS_SCHEME_DELETE_CAPTION 866        // Delete scheme
#define IDS_SCHEME_NO_NAME 867               // Type a name for the scheme first.
#define IDS_SCHEME_NO_NAME_CAPTION 868       // No name
#define IDS_SCHEME_TAKEN 869                 // There is a scheme of that name already. Choose another name.
#define IDS_SCHEME_TAKEN_CAPTION 870         // Name taken
#define IDS_SCHEME_SAVED 871                 // The present colors and fonts are saved as a scheme.
#define IDS_SCHEME_SAVED_CAPTION 872         // Scheme saved
#define IDS_SCHEME_APPLY_QUESTION 873        // Apply this scheme and close the program without saving other changes?
#define IDS_SCHEME_APPLY_CAPTION 874         // Apply scheme
#define IDS_SCHEME_NOT_OPENED 875            // The scheme cannot be opened. Nothing was changed.
#define IDS_SCHEME_NOT_OPENED_CAPTION 876    // Scheme not applied
#define IDS_SCHEME_REFUSED 877               // This file is no scheme. For your colors and fonts, apply "Before applying".
#define IDS_SCHEME_REFUSED_CAPTION 878       // No scheme
#define IDS_SCHEME_NOT_SAVED 2250            // The scheme could not be saved.
#define IDS_SCHEME_NOT_SAVED_CAPTION 2251    // Scheme not saved
#define IDS_SCHEME_NOT_DELETED 2252          // The scheme could not be deleted: it is protected or in use.

// The Fonts page; the name of a font follows that of the tab in which it is seen.
#define IDS_FONTS_TAB_FONTS 2260          // Kinds
#define IDS_FONTS_SIZE 2261               // Size
#define IDS_FONTS_TITLES_SIZE 2262        // Size of titles
#define IDS_FONTS_FACE 2263               // Font
#define IDS_FONTS_SHADOW 2264             // Shadow
#define IDS_FONTS_SHADOW_NONE 2265        // None
#define IDS_FONTS_SHADOW_RIGHT 2266       // Right
#define IDS_FONTS_SHADOW_DOWN_RIGHT 2267  // Below right
#define IDS_FONTS_SHADOW_DOWN 2268        // Below
#define IDS_FONTS_SHADOW_OUTLINE 2269     // Outline
#define IDS_FONTS_CLEAR_TYPE 2270         // Use ClearType
#define IDS_FONTS_OWN 2271                // A font for each kind of item
#define IDS_FONTS_CHANGE 2272             // Change
#define IDS_FONT_GENERAL 2280             // All other texts
#define IDS_FONT_TITLES 2281              // titles
#define IDS_FONT_BUSY 2282                // busy
#define IDS_FONT_FREE 2283                // free
#define IDS_FONT_OUT_OF_OFFICE 2284       // out of office
#define IDS_FONT_TENTATIVE 2285           // tentative
#define IDS_FONT_PAST 2286                // past
#define IDS_FONT_COMPLETED 2287           // completed
#define IDS_FONT_TASKS 2288               // tasks
#define IDS_FONT_TASKS_OVERDUE 2289       // overdue tasks
#define IDS_FONT_TASKS_FUTURE 2290        // future tasks
#define IDS_FONT_TASKS_COMPLETED 2291     // completed tasks
#define IDS_FONT_TASKS_UNDATED 2292       // undated tasks
#define IDS_FONT_NO_NEW_MAIL 2293         // no new mail
#define IDS_FONT_NEW_MAIL 2294            // new mail
#define IDS_FONT_OVERDUE 2295             // overdue
#define IDS_FONT_DUE_TODAY 2296           // due today
#define IDS_FONT_DUE_LATER 2297           // due later
#define IDS_FONT_UNDATED 2298             // without a date
#define IDS_FONT_ITEMS 2299               // items
#define IDS_FONT_UNREAD 2300              // unread
#define IDS_FONT_READ 2301                // read
#define IDS_FONT_EVENTS_FILTER_1 2302     // filter 1
#define IDS_FONT_EVENTS_FILTER_2 2303     // filter 2
#define IDS_FONT_EVENTS_FILTER_3 2304     // filter 3
#define IDS_FONT_EVENTS_FILTER_4 2305     // filter 4

// The Categories page.
#define IDS_CATEGORIES_TAB 2400                // Categories
#define IDS_CATEGORIES_TAB_MEMBERS 2401        // Members
#define IDS_CATEGORIES_ICONS_FOLDER 2402       // More icons
#define IDS_CATEGORIES_NONE 2403               // This device has no categories yet: give an appointment or a task one first.
#define IDS_CATEGORIES_COLOR 2404              // Color...
#define IDS_FILTER 2405                        // Filter
#define IDS_FILTER_TITLE 2406                  // Title
#define IDS_FILTER_TITLE_KEY 2407              // Title...
#define IDS_FILTER_RESET 2408                  // Reset...
#define IDS_FILTER_SENSITIVITY 2409            // Sensitivity
#define IDS_FILTER_ALL_ITEMS 2410              // All items
#define IDS_FILTER_PUBLIC 2411                 // Not private
#define IDS_FILTER_PRIVATE 2412                // Private only
#define IDS_FILTER_UNCATEGORIZED 2413          // Also items without a category
#define IDS_FILTER_TITLE_REFUSED 2414          // A title has 1 to 127 Latin characters and no quotation marks.
#define IDS_FILTER_TITLE_REFUSED_CAPTION 2415  // Title not possible
#define IDS_FILTER_RESET_QUESTION 2416         // Give all 32 filters their first titles and settings? Their categories stay.
#define IDS_FILTER_RESET_CAPTION 2417          // Reset filters

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
#define IDS_IMPORT_NO_COPY 2036           // Not all settings could be copied.
#define IDS_IMPORT_NO_COPY_QUESTION 2074  // Import all the same?
#define IDS_IMPORT_QUESTION_CAPTION 2037  // Import Settings
#define IDS_FILTERS_NOT_WRITTEN 2073      // The filters could not be saved.

// What the user can do when a file cannot be read or written; the last sentence of a paragraph.
#define IDS_FILE_ABSENT 2070     // There is no such file or folder: choose another.
#define IDS_FILE_PROTECTED 2071  // The place is protected or in use: choose another name or folder.
#define IDS_FILE_FULL 2072       // The storage is full: make room or choose another place.
