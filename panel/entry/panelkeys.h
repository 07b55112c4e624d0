// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class MenuButton;
class SwitchButton;

namespace Panel
{

class PanelModel;
class SoftKey;
class SoftKeyMenu;

/// The panel's soft keys by what they are for, page by page. What they do is up to the controllers.
struct PanelKeys {
    // Stimulus
    SoftKey *start;
    SoftKey *stop;
    SoftKey *center;
    SoftKey *span;
    SoftKey *points;
    SoftKey *frequencyScale; ///< of Cartesian diagrams
    // Trace
    SoftKey *trace; ///< which is active
    SoftKey *parameter; ///< that it shows, of its network
    SoftKey *format;
    SoftKey *network; ///< the file that it is of, while there are several
    SoftKey *diagram; ///< that it is in: as its format says, or as the user does
    SoftKey *name;
    SwitchButton *visible;
    SoftKey *addTrace;
    SoftKey *removeTrace;
    // Math
    MenuButton *memory;
    SoftKey *math; ///< what is made of data and memory
    SoftKey *smoothing;
    SoftKey *extensionPort; ///< which port the next key is about
    SoftKey *extension; ///< the delay of a line that is taken off
    SoftKey *impedance; ///< that the ports refer to
    // Scale
    SoftKey *scale;
    SoftKey *reference; ///< the value that stays where it is when the scale changes
    SoftKey *referencePosition; ///< where that is
    MenuButton *autoScale; ///< of one trace, or of all
    // Marker
    SoftKey *marker; ///< adds and removes
    SoftKey *markerStimulus;
    MenuButton *search;
    MenuButton *markerTo;
    SoftKey *referenceMarker;
    SoftKey *readout;
    SoftKey *bandwidth; ///< how far down, or up, the edges of a band are
    SoftKey *track; ///< what the selected marker goes to by itself
    SoftKey *couple; ///< whether markers of one number stand together
    SwitchButton *markerTable;
    // Limits
    SoftKey *limitLines; ///< that the active trace must stay above or below
    SwitchButton *editLimits; ///< in the diagram
    SoftKey *limitSide; ///< of the selected limit
    SoftKey *removeLimit;
    SoftKey *vswrCircle; ///< a circle on the Smith charts, to read against
    SoftKey *vswrLimit; ///< an area that traces on the Smith charts must stay in
    SoftKey *limitRadius; ///< of that area, wherever it is, in units of reflection
    SoftKey *limitReal; ///< its centre
    SoftKey *limitImag;
    // Display, below the choice of the layout, which the library brings
    SoftKey *grid;
    SoftKey *density;
    SoftKey *gridLabels; ///< normalised, or in ohms and siemens
    SoftKey *zoom;
    SoftKey *whole; ///< ends the zoom
    SoftKey *pointer; ///< which traces taps and drags reach
    // Sweep
    SoftKey *source; ///< files, one of the simulated devices, or an instrument
    SoftKey *instrument; ///< which one, and how it stands with it
    SwitchButton *sweep; ///< sweeping or held
    SoftKey *single; ///< one sweep, then hold
    SoftKey *ifBandwidth;
    SoftKey *power;
    SoftKey *averages;
    SoftKey *tune; ///< the antenna's resonance
    SwitchButton *timing;
    // System
    SoftKey *file;
    MenuButton *save; ///< data and drawings
    SoftKey *screenshot;
    SoftKey *setups; ///< kept under names, and the default one
    SoftKey *undo;
    SoftKey *redo;
    SoftKey *settings;
    SoftKey *help;
};

/// Fills the menu with its pages and keys.
PanelKeys makePanelKeys(SoftKeyMenu *menu, PanelModel *model);

} // namespace Panel
