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
