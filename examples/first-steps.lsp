;; First steps with Vrn2 in the headless editor.
;; Run with: tools/setup.sh example

(princ "\nInstallation root (_DRV): ")
(princ _DRV)

(princ "\nSuite path from the registry: ")
(princ (_Xgetsyspath))

(princ "\nCorners of the current view: ")
(prin1 (_Xscjx))

;; Chinese lettering on the graphics screen from the bitmap font "system\cclib".
(t:draw-hz 20 20 1.0 1 "" "暖通空调")
(princ "\nLettering drawn as temporary screen graphics.")
(princ)

;; A room on its own layer, drawn with the editor's commands, and its name: they show in the
;; picture of the drawing the run writes (adscon --render).
(command "LAYER" "M" "ROOM" "C" "1" "" "")
(command "LINE" '(0 0) '(8000 0) '(8000 6000) '(0 6000) "C")
(command "LAYER" "M" "NOTE" "C" "5" "" "")
(command "TEXT" '(500 5000) 400 0 "办公室 Office 24 °C")
(princ)
